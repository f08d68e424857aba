#pragma once

namespace Prm {

/// One key of a curve: a time and the value held there.
template <class T>
struct KeyframeData {
    float fTime = 0.0f;
    T tValue = T();
};

} // namespace Prm
