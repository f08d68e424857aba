#pragma once

namespace Prm {

/// Declared only: a set is constructed with a pointer of this type, and the library always passes null.
class ParameterTree;

} // namespace Prm
