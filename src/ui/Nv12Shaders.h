#pragma once

/// Full-range BT.601. Only declarations and look-ups differ between the two versions.
namespace corvane::shaders {

inline constexpr char kVertex330[] = R"(#version 330 core
layout(location = 0) in vec2 aPosition;
layout(location = 1) in vec2 aTexCoord;
out vec2 vTexCoord;
void main() {
    gl_Position = vec4(aPosition, 0.0, 1.0);
    vTexCoord = aTexCoord;
}
)";

inline constexpr char kFragment330[] = R"(#version 330 core
in vec2 vTexCoord;
uniform sampler2D yTexture;
uniform sampler2D uvTexture;
out vec4 fragColor;
void main() {
    float y = texture(yTexture, vTexCoord).r;
    float u = texture(uvTexture, vTexCoord).r - 0.5;
    float v = texture(uvTexture, vTexCoord).g - 0.5;
    vec3 rgb = vec3(y + 1.402 * v, y - 0.344 * u - 0.714 * v, y + 1.772 * u);
    fragColor = vec4(clamp(rgb, 0.0, 1.0), 1.0);
}
)";

inline constexpr char kVertex130[] = R"(#version 130
attribute vec2 aPosition;
attribute vec2 aTexCoord;
varying vec2 vTexCoord;
void main() {
    gl_Position = vec4(aPosition, 0.0, 1.0);
    vTexCoord = aTexCoord;
}
)";

inline constexpr char kFragment130[] = R"(#version 130
varying vec2 vTexCoord;
uniform sampler2D yTexture;
uniform sampler2D uvTexture;
void main() {
    float y = texture2D(yTexture, vTexCoord).r;
    float u = texture2D(uvTexture, vTexCoord).r - 0.5;
    float v = texture2D(uvTexture, vTexCoord).g - 0.5;
    vec3 rgb = vec3(y + 1.402 * v, y - 0.344 * u - 0.714 * v, y + 1.772 * u);
    gl_FragColor = vec4(clamp(rgb, 0.0, 1.0), 1.0);
}
)";

} // namespace corvane::shaders
