#pragma once

#include <QOpenGLExtraFunctions>
#include <QRect>
#include <QSize>

#include <memory>

class QOpenGLShaderProgram;

namespace corvane {

struct DecodedFrame;

/// Draws NV12 pictures with OpenGL: two textures, converted to RGB by the fragment shader. Every
/// call, including construction and destruction, needs the same OpenGL context to be current.
class Nv12Renderer : private QOpenGLExtraFunctions {
public:
    Nv12Renderer();
    ~Nv12Renderer();
    Nv12Renderer(const Nv12Renderer&) = delete;
    Nv12Renderer& operator=(const Nv12Renderer&) = delete;

    /// Builds the shaders, for GLSL 3.30 or, failing that, 1.30. False, logged, when neither works.
    bool initialize();

    void upload(const DecodedFrame& frame);

    /// Draws the last picture into `viewport` (OpenGL's bottom-left origin, device pixels). Does
    /// nothing without a picture.
    void draw(const QRect& viewport);

    void clear(QSize area);

    /// Returns to the state before the first picture.
    void forgetPicture();

    /// Size of the last picture in pixels; empty before the first.
    QSize pictureSize() const { return m_geometry.size; }

private:
    struct Geometry {
        QSize size{0, 0};
        int yStride = 0;
        int uvStride = 0;
        bool operator==(const Geometry&) const = default;
    };

    bool buildModernProgram();
    bool buildFallbackProgram();
    bool locateUniforms();
    void createVertices();
    void createTextures(const Geometry& geometry);
    GLuint createTexture(GLint internalFormat, GLenum format, QSize size);
    void deleteTextures();
    void uploadPlane(GLuint texture, GLenum format, int texelBytes, QSize size,
                     const uint8_t* pixels, int stride);
    void reportErrors(const char* step);

    std::unique_ptr<QOpenGLShaderProgram> m_program;
    GLuint m_vertexArray = 0;
    GLuint m_vertexBuffer = 0;
    GLuint m_yTexture = 0;
    GLuint m_uvTexture = 0;
    int m_yUniform = -1;
    int m_uvUniform = -1;
    Geometry m_geometry;
};

} // namespace corvane
