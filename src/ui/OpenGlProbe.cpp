#include "ui/OpenGlProbe.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <spdlog/spdlog.h>

namespace corvane {

namespace {

constexpr QOpenGLFunctions::OpenGLFeatures kNeeded =
    QOpenGLFunctions::Shaders | QOpenGLFunctions::Buffers | QOpenGLFunctions::Framebuffers;

} // namespace

bool isOpenGlUsable() {
    QOpenGLContext context;
    if (!context.create()) {
        spdlog::error("There is no OpenGL, the remote picture stays black");
        return false;
    }
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface)) {
        spdlog::error("OpenGL cannot be used, the remote picture stays black");
        return false;
    }
    // Windows without a graphics driver offers OpenGL 1.1.
    const bool usable = (context.functions()->openGLFeatures() & kNeeded) == kNeeded;
    if (!usable) {
        const QSurfaceFormat format = context.format();
        spdlog::error("OpenGL {}.{} has no shaders or framebuffers, the remote picture stays black",
                      format.majorVersion(), format.minorVersion());
    }
    context.doneCurrent();
    return usable;
}

} // namespace corvane
