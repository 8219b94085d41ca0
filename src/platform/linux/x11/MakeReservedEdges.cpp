#include "platform/SystemAdapters.h"
#include "platform/linux/x11/X11ReservedEdges.h"

#include <QGuiApplication>

namespace tessaline {

std::unique_ptr<ReservedEdges> makeReservedEdges() {
    if (!qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) return nullptr;
    return X11ReservedEdges::open();
}

} // namespace tessaline
