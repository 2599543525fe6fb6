#include "Platform/MakePlatform.h"

#include <QDir>

namespace fendrel {

using namespace Qt::StringLiterals;

void prepareToolkit() {
    // The X11 protocol is what the adapters here speak, also where the session offers another.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    // Drawing OpenGL without a graphics card costs more memory and time than Qt Quick's own software renderer.
    const bool hasGraphicsCard = !QDir(u"/dev/dri"_s).entryList({u"renderD*"_s}, QDir::System).isEmpty();
    if (!hasGraphicsCard && !qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
}

} // namespace fendrel
