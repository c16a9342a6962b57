#pragma once

#include "CCutDetailPhoto.h"
#include "CropState.h"

namespace UICommonMdl {

class CComTipWiget;

/// State of the plain crop canvas.
class CCutDetailPhotoPrivate
{
public:
    CropState state;
    CComTipWiget* tip = nullptr;
    QPoint press; ///< of the press that began the drag; (0, 0) between drags
    bool pressed = false; ///< a drag that began on the photo is under way
    bool showTip = true; ///< nothing was dragged yet
    bool cropUnpainted = false; ///< the frame on the screen is not the present one
};

} // namespace UICommonMdl
