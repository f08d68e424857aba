#pragma once

namespace Prm {

/// Opaque scratch space of custom curve methods. The engine only passes pointers to it through the read
/// path (always null from inside the library) and never dereferences one.
class Cache;

} // namespace Prm
