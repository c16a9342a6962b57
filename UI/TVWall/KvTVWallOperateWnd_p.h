#pragma once

#include "KvTVWallDisplayEagleEye.h"
#include "KvTVWallDisplayWnd.h"
#include "KvTVWallNormalWnd.h"
#include "KvTVWallOperateWnd.h"
#include "WallZoom.h"

#include <QPointer>

namespace UICommonMdl {

/// State of the operate wall: the wall that it holds, and the zoom of a display wall.
class KvTVWallOperateWndPrivate : public QObject
{
    Q_OBJECT

public:
    explicit KvTVWallOperateWndPrivate(KvTVWallOperateWnd* operate);

    /// Null unless the mode is the display family's and there is such a wall.
    KvTVWallDisplayWnd* Display() const
    {
        return showMode == KvTVWallOperateWnd::DisplayMode ? displayWall.data() : nullptr;
    }
    /// Null unless the mode is the normal family's and there is such a wall.
    KvTVWallNormalWnd* Normal() const
    {
        return showMode == KvTVWallOperateWnd::NormalMode ? normalWall.data() : nullptr;
    }

    /// Calls @p call with the wall of the present mode, whichever family it is of: operations of the same
    /// name are written once. @return its result, or @p otherwise without a wall
    template <typename Call, typename Result>
    Result OnWall(Call call, Result otherwise) const
    {
        if (Display() != nullptr)
            return Result(call(*Display()));
        if (Normal() != nullptr)
            return Result(call(*Normal()));
        return otherwise;
    }
    template <typename Call>
    void OnWall(Call call) const
    {
        if (Display() != nullptr)
            call(*Display());
        else if (Normal() != nullptr)
            call(*Normal());
    }

    void MakeNormalWall();
    void MakeDisplayWall();
    void DeleteNormalWall();
    void DeleteDisplayWall();

    void LayOut(); ///< for the widget's present size
    void PlaceDisplayWall(); ///< by the zoom, and shows in the overview what is seen of it
    void PlaceEagleEye();

    KvTVWallOperateWnd* const q;
    QPointer<KvTVWallNormalWnd> normalWall;
    QPointer<KvTVWallDisplayWnd> displayWall;
    QPointer<KvTVWallDisplayEagleEye> eagleEye;
    int showMode = KvTVWallOperateWnd::NormalMode;
    WallZoom::Axis horizontal;
    WallZoom::Axis vertical;
    QList<QWidget*> going; // children that are being deleted further down the stack

private:
    void Delete(const QVector<QPointer<QWidget>>& children);
};

} // namespace UICommonMdl
