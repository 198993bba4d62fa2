#version 440

layout(location = 0) in vec4 position;
layout(location = 1) in vec2 texturePosition;
layout(location = 2) in float visibility;
layout(location = 0) out vec2 fragmentTexturePosition;
layout(location = 1) out float fragmentVisibility;
layout(std140, binding = 0) uniform Uniforms
{
    mat4 qt_Matrix;
    float qt_Opacity;
};

void main()
{
    fragmentTexturePosition = texturePosition;
    fragmentVisibility = visibility * qt_Opacity;
    gl_Position = qt_Matrix * position;
}
