#version 440

// Draws a strip with a visibility that changes evenly from its top to its bottom and is held
// between 0 and 1. The colours of the texture are premultiplied.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;
layout(std140, binding = 0) uniform Uniforms
{
    mat4 qt_Matrix;
    float qt_Opacity;
    float topVisibility;
    float bottomVisibility;
};
layout(binding = 1) uniform sampler2D strip;

void main()
{
    float visibility = clamp(mix(topVisibility, bottomVisibility, qt_TexCoord0.y), 0.0, 1.0);
    fragColor = texture(strip, qt_TexCoord0) * (visibility * qt_Opacity);
}
