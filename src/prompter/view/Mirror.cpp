#include "prompter/view/Mirror.h"

namespace tessaline {

Mirror::Mirror(Mirroring mirroring, const QSizeF& size) {
    const bool isSideways = mirroring == Mirroring::horizontal || mirroring == Mirroring::both;
    const bool isUpsideDown = mirroring == Mirroring::vertical || mirroring == Mirroring::both;
    transform.translate(isSideways ? size.width() : 0.0, isUpsideDown ? size.height() : 0.0);
    transform.scale(isSideways ? -1.0 : 1.0, isUpsideDown ? -1.0 : 1.0);
}

} // namespace tessaline
