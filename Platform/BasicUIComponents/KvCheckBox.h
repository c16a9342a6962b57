#pragma once

#include <QCheckBox>
#include <UIComponentsExport.h>

namespace KvGUI {

/// A check box in the library's look, which follows the skin.
class UICOMPONENTS_EXPORT KvCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit KvCheckBox(QWidget* parent = nullptr);
    explicit KvCheckBox(const QString& text, QWidget* parent = nullptr);
};

} // namespace KvGUI
