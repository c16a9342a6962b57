#pragma once

#include <QScrollBar>
#include <UIComponentsExport.h>

namespace KvGUI {

/// A vertical scroll bar in the library's look, which follows the skin. Give it to a scroll area with
/// QAbstractScrollArea::setVerticalScrollBar().
class UICOMPONENTS_EXPORT KvVerScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    explicit KvVerScrollBar(QWidget* parent = nullptr);
};

} // namespace KvGUI
