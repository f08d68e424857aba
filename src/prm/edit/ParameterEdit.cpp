#include "prm/edit/ParameterEdit.h"

namespace Prm {

ParameterEdit::ParameterEdit(ParameterWithoutType* parameterBase) : bDone(false), parameterBase(parameterBase)
{
}

ParameterEdit::~ParameterEdit() = default;

} // namespace Prm
