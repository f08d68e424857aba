#pragma once

namespace TQ {

/// One vertex handed to the host's drawing callbacks: a position in image pixels and a colour with alpha,
/// each channel 0 to 1. Plain data; the library only passes containers of it by reference.
struct VertexInfo {
    float x = 0.0f;
    float y = 0.0f;
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;
    float alpha = 1.0f;
};

} // namespace TQ
