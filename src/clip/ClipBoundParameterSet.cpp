#include "clip/ClipBoundParameterSet.h"

#include "prm/ParameterChange.h"

#include <boost/make_shared.hpp>

namespace {

// A clip reference keeps its id as the static value; reaching it directly stores it whether or not the
// parameter was ever given keys.
struct ClipReference : Prm::Parameter<unsigned int> {
    static unsigned int& storedValue(Prm::Parameter<unsigned int>& clip)
    {
        return clip.*(&ClipReference::tStaticValue);
    }
};

} // namespace

namespace TQ {

ClipBoundParameterSet::ClipBoundParameterSet(QString const& name)
    : Prm::ParameterSet(name, nullptr)
{
}

ClipBoundParameterSet::~ClipBoundParameterSet() = default;

void ClipBoundParameterSet::forgetClip(Prm::Parameter<unsigned int>& clip, unsigned int clipId)
{
    if (clipId != 0 && clip.staticValue() != clipId)
        return;
    unsigned int const initial = clip.defaultValue();
    unsigned int& stored = ClipReference::storedValue(clip);
    if (initial == stored)
        return;
    stored = initial;
    Prm::ParameterChange change(Prm::ParameterChange::StaticValueChanged, &clip, 0u);
    emit clip.changed(change);
}

void ClipBoundParameterSet::rescale(float, float)
{
}

void ClipBoundParameterSet::removeReferencesToClip(unsigned int)
{
}

ClipBoundParameterSet::MovedParameterHandle ClipBoundParameterSet::newMovedParameter(char const* name)
{
    return boost::make_shared<Prm::MovedParameter>(QString::fromLatin1(name), nullptr);
}

void ClipBoundParameterSet::vAddParameters(std::initializer_list<Prm::ParameterWithoutType*> parameters)
{
    for (Prm::ParameterWithoutType* parameter : parameters)
        addParameter(parameter);
}

void ClipBoundParameterSet::vForgetClips(std::initializer_list<Prm::Parameter<unsigned int>*> clips,
                                         unsigned int clipId)
{
    for (Prm::Parameter<unsigned int>* clip : clips)
        forgetClip(*clip, clipId);
}

void ClipBoundParameterSet::vHide(std::initializer_list<Prm::ParameterWithoutType*> parameters, bool bHide)
{
    for (Prm::ParameterWithoutType* parameter : parameters)
        parameter->hide(bHide);
}

void ClipBoundParameterSet::vListMovedParameters(std::initializer_list<MovedParameterHandle const*> moved)
{
    basicParameters.clear();
    for (MovedParameterHandle const* handle : moved)
        basicParameters.append(handle->get());
}

} // namespace TQ
