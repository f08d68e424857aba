#include "prm/basic/BasicParameter.h"

namespace Prm {

BasicParameter::BasicParameter() : QObject(nullptr) {}

BasicParameter::~BasicParameter() = default;

} // namespace Prm
