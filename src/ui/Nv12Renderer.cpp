#include "ui/Nv12Renderer.h"

#include "media/DecodedFrame.h"
#include "ui/Nv12Shaders.h"

#include <QOpenGLShaderProgram>
#include <spdlog/spdlog.h>

#include <array>

namespace corvane {

namespace {

constexpr GLuint kPositionAttribute = 0;
constexpr GLuint kTexCoordAttribute = 1;
constexpr size_t kVertexCount = 6;
constexpr size_t kFloatsPerVertex = 4;
constexpr GLsizei kVertexStride = kFloatsPerVertex * sizeof(float);

/// Two triangles over the whole viewport: x, y, u, v. The picture's first row is at the top.
constexpr std::array<float, kFloatsPerVertex * kVertexCount> kVertices{
    -1.0F, 1.0F, 0.0F, 0.0F, -1.0F, -1.0F, 0.0F, 1.0F, 1.0F, -1.0F, 1.0F, 1.0F,
    -1.0F, 1.0F, 0.0F, 0.0F, 1.0F,  -1.0F, 1.0F, 1.0F, 1.0F, 1.0F,  1.0F, 0.0F};

} // namespace

Nv12Renderer::Nv12Renderer() {
    initializeOpenGLFunctions();
    const auto text = [this](GLenum name) {
        const GLubyte* value = glGetString(name);
        return value != nullptr ? reinterpret_cast<const char*>(value) : "unknown";
    };
    spdlog::info("OpenGL initialised: vendor={}, renderer={}", text(GL_VENDOR), text(GL_RENDERER));
    glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
}

Nv12Renderer::~Nv12Renderer() {
    deleteTextures();
    if (m_vertexBuffer != 0) {
        glDeleteBuffers(1, &m_vertexBuffer);
    }
    if (m_vertexArray != 0) {
        glDeleteVertexArrays(1, &m_vertexArray);
    }
}

bool Nv12Renderer::initialize() {
    if (!buildModernProgram() && !buildFallbackProgram()) {
        return false;
    }
    if (!locateUniforms()) {
        return false;
    }
    createVertices();
    return true;
}

bool Nv12Renderer::buildModernProgram() {
    m_program = std::make_unique<QOpenGLShaderProgram>();
    if (m_program->addShaderFromSourceCode(QOpenGLShader::Vertex, shaders::kVertex330) &&
        m_program->addShaderFromSourceCode(QOpenGLShader::Fragment, shaders::kFragment330) &&
        m_program->link()) {
        spdlog::info("Using GLSL 3.30 shaders");
        return true;
    }
    spdlog::warn("GLSL 3.30 shaders failed, trying 1.30 fallback");
    return false;
}

bool Nv12Renderer::buildFallbackProgram() {
    m_program = std::make_unique<QOpenGLShaderProgram>();
    const auto programLog = [this] {
        return m_program->log().toStdString();
    };
    if (!m_program->addShaderFromSourceCode(QOpenGLShader::Vertex, shaders::kVertex130)) {
        spdlog::error("Vertex shader 1.30 failed: {}", programLog());
        return false;
    }
    if (!m_program->addShaderFromSourceCode(QOpenGLShader::Fragment, shaders::kFragment130)) {
        spdlog::error("Fragment shader 1.30 failed: {}", programLog());
        return false;
    }
    m_program->bindAttributeLocation("aPosition", kPositionAttribute);
    m_program->bindAttributeLocation("aTexCoord", kTexCoordAttribute);
    if (!m_program->link()) {
        spdlog::error("Shader 1.30 link failed: {}", programLog());
        return false;
    }
    spdlog::info("Using GLSL 1.30 fallback shaders");
    return true;
}

bool Nv12Renderer::locateUniforms() {
    m_yUniform = m_program->uniformLocation("yTexture");
    m_uvUniform = m_program->uniformLocation("uvTexture");
    if (m_yUniform < 0 || m_uvUniform < 0) {
        spdlog::error("Failed to locate texture uniforms (yTexture={}, uvTexture={})", m_yUniform,
                      m_uvUniform);
        return false;
    }
    return true;
}

void Nv12Renderer::createVertices() {
    glGenVertexArrays(1, &m_vertexArray);
    glBindVertexArray(m_vertexArray);
    reportErrors("glGenVertexArrays");
    glGenBuffers(1, &m_vertexBuffer);
    glBindBuffer(GL_ARRAY_BUFFER, m_vertexBuffer);
    glBufferData(GL_ARRAY_BUFFER, sizeof(kVertices), kVertices.data(), GL_STATIC_DRAW);
    glEnableVertexAttribArray(kPositionAttribute);
    glVertexAttribPointer(kPositionAttribute, 2, GL_FLOAT, GL_FALSE, kVertexStride, nullptr);
    glEnableVertexAttribArray(kTexCoordAttribute);
    glVertexAttribPointer(kTexCoordAttribute, 2, GL_FLOAT, GL_FALSE, kVertexStride,
                          reinterpret_cast<const void*>(2 * sizeof(float)));
    glBindVertexArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void Nv12Renderer::upload(const DecodedFrame& frame) {
    const Geometry geometry{QSize(frame.width, frame.height), frame.yStride, frame.uvStride};
    if (geometry != m_geometry) {
        createTextures(geometry);
    }
    uploadPlane(m_yTexture, GL_RED, 1, geometry.size, frame.yPlane.data(), frame.yStride);
    reportErrors("upload Y texture");
    const QSize chromaSize(frame.width / 2, frame.height / 2);
    uploadPlane(m_uvTexture, GL_RG, 2, chromaSize, frame.uvPlane.data(), frame.uvStride);
    reportErrors("upload UV texture");
}

void Nv12Renderer::draw(const QRect& viewport) {
    if (m_yTexture == 0 || m_uvTexture == 0 || m_geometry.size.isEmpty()) {
        return;
    }
    glViewport(viewport.x(), viewport.y(), viewport.width(), viewport.height());
    m_program->bind();
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, m_yTexture);
    m_program->setUniformValue(m_yUniform, 0);
    glActiveTexture(GL_TEXTURE1);
    glBindTexture(GL_TEXTURE_2D, m_uvTexture);
    m_program->setUniformValue(m_uvUniform, 1);
    glBindVertexArray(m_vertexArray);
    glDrawArrays(GL_TRIANGLES, 0, kVertexCount);
    glBindVertexArray(0);
    glBindTexture(GL_TEXTURE_2D, 0);
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, 0);
    m_program->release();
    reportErrors("paintGL");
}

void Nv12Renderer::clear(QSize area) {
    glViewport(0, 0, area.width(), area.height());
    glClear(GL_COLOR_BUFFER_BIT);
}

void Nv12Renderer::forgetPicture() {
    deleteTextures();
    m_geometry = {};
}

void Nv12Renderer::createTextures(const Geometry& geometry) {
    deleteTextures();
    m_geometry = geometry;
    m_yTexture = createTexture(GL_R8, GL_RED, geometry.size);
    reportErrors("create Y texture");
    m_uvTexture =
        createTexture(GL_RG8, GL_RG, QSize(geometry.size.width() / 2, geometry.size.height() / 2));
    reportErrors("create UV texture");
    spdlog::info("Created NV12 textures: {}x{} (yStride={}, uvStride={})", geometry.size.width(),
                 geometry.size.height(), geometry.yStride, geometry.uvStride);
}

GLuint Nv12Renderer::createTexture(GLint internalFormat, GLenum format, QSize size) {
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexImage2D(GL_TEXTURE_2D, 0, internalFormat, size.width(), size.height(), 0, format,
                 GL_UNSIGNED_BYTE, nullptr);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glBindTexture(GL_TEXTURE_2D, 0);
    return texture;
}

void Nv12Renderer::deleteTextures() {
    for (GLuint* texture : {&m_yTexture, &m_uvTexture}) {
        if (*texture != 0) {
            glDeleteTextures(1, texture);
            *texture = 0;
        }
    }
}

void Nv12Renderer::uploadPlane(GLuint texture, GLenum format, int texelBytes, QSize size,
                               const uint8_t* pixels, int stride) {
    glBindTexture(GL_TEXTURE_2D, texture);
    // Rows are `stride` bytes apart, which need not be a multiple of four.
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    if (stride % texelBytes == 0) {
        glPixelStorei(GL_UNPACK_ROW_LENGTH, stride / texelBytes);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, size.width(), size.height(), format,
                        GL_UNSIGNED_BYTE, pixels);
        glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    } else {
        // The row length counts whole texels and cannot express this stride.
        for (int row = 0; row < size.height(); ++row) {
            glTexSubImage2D(GL_TEXTURE_2D, 0, 0, row, size.width(), 1, format, GL_UNSIGNED_BYTE,
                            pixels + static_cast<ptrdiff_t>(row) * stride);
        }
    }
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glBindTexture(GL_TEXTURE_2D, 0);
}

void Nv12Renderer::reportErrors(const char* step) {
    // A lost context reports errors without end.
    constexpr int kMaxErrors = 32;
    for (int i = 0; i < kMaxErrors; ++i) {
        const GLenum error = glGetError();
        if (error == GL_NO_ERROR) {
            return;
        }
        spdlog::error("OpenGL error in {}: 0x{:04X}", step, error);
    }
}

} // namespace corvane
