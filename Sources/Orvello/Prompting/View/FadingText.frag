#version 440

// The colours of the texture are premultiplied.

layout(location = 0) in vec2 fragmentTexturePosition;
layout(location = 1) in float fragmentVisibility;
layout(location = 0) out vec4 fragmentColor;
layout(binding = 1) uniform sampler2D text;

void main() { fragmentColor = texture(text, fragmentTexturePosition) * fragmentVisibility; }
