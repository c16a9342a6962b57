#pragma once

#include <QColor>
#include <QString>

namespace UICommonMdl {

/// What the items of a normal wall are painted with. The values here are used where the style sheet is
/// missing; icons are picture files, and none without a sheet.
struct NormalWallLook
{
    QColor gutterColor = QColor(11, 12, 14); ///< between the screens
    QColor windowFrameColor = QColor(127, 132, 142);
    QColor windowSelectedFrameColor = QColor(90, 165, 242);
    QColor windowColor = QColor(46, 49, 56); ///< behind title bar and video
    QColor titleColor = QColor(46, 49, 56);
    QColor titleTextColor = QColor(230, 232, 236);
    QColor videoColor = QColor(16, 17, 20);
    QColor videoTextColor = QColor(166, 171, 181);
    QColor screenTextColor = QColor(201, 205, 213);
    QColor bandColor = QColor(90, 165, 242); ///< frames that the operator draws, and the keyboard focus
    QColor buttonHoverColor = QColor(67, 72, 81);
    QColor buttonPressedColor = QColor(85, 91, 102);
    QColor closeHoverColor = QColor(194, 53, 43);
    QColor closePressedColor = QColor(160, 42, 34);
    QString volumeOffIcon;
    QString volumeOnIcon;
    QString snapIcon;
    QString snapRestoreIcon;
    QString maxIcon;
    QString maxRestoreIcon;
    QString closeIcon;
    QString closeHoverIcon;
};

} // namespace UICommonMdl
