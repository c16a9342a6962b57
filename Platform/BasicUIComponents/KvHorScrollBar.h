#pragma once

#include <QScrollBar>
#include <UIComponentsExport.h>

namespace KvGUI {

/// A horizontal scroll bar in the library's look, which follows the skin. Give it to a scroll area with
/// QAbstractScrollArea::setHorizontalScrollBar().
class UICOMPONENTS_EXPORT KvHorScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    explicit KvHorScrollBar(QWidget* parent = nullptr);
};

} // namespace KvGUI
