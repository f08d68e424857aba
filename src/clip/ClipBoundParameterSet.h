#pragma once
#include "prm/basic/MovedParameter.h"
#include "prm/Parameter.h"
#include "prm/set/ParameterSet.h"

#include <QString>
#include <boost/shared_ptr.hpp>
#include <initializer_list>

namespace TQ {

/// Base of the module parameter sets, which name clips only by id, through `Prm::Parameter<unsigned int>`
/// members whose script names end in "ClipID" (0: no clip).
///
/// The shape every set follows. Its members (parameters by value, moved-parameter handles, container
/// pointers) sit in declaration order, each built by its member initializer, so that the header reads as
/// the set's table; they are usually gathered in a plain struct that the set also derives from, so that
/// the struct's implicit copy and assignment cover every member and the set writes only where it departs.
/// - Constructor: this base with the set's fixed name, the members, then the set's `init()`.
/// - `init()`: `vAddParameters` in text order, `vListMovedParameters`, display names and hidden flags,
///   child sets; it runs again in every copy, so a copy binds its own members.
/// - Copy constructor: this base with the fixed name again (not the source's), copies of the members
///   (a moved-parameter handle shares its object with the source), then `init()`.
/// - `operator=`: `bAssignSet`, then whatever the set does beyond its members' own assignments.
class ClipBoundParameterSet : public Prm::ParameterSet
{
public:
    /// A moved parameter is shared by a set, its copies and the sets assigned from it; the last handle
    /// frees it. `basicParameters` only lists it and is never owning in these sets.
    using MovedParameterHandle = boost::shared_ptr<Prm::MovedParameter>;

    /// `name` is the set's fixed name, both script and display name.
    explicit ClipBoundParameterSet(QString const& name);
    ClipBoundParameterSet(ClipBoundParameterSet const&) = delete;
    ClipBoundParameterSet& operator=(ClipBoundParameterSet const&) = delete;
    ~ClipBoundParameterSet() override;

    /// Resets `clip` to its default when it names `clipId` (0 matches any clip), and announces a real
    /// change with `changed` (kind 12, index 0). An unchanged value announces nothing.
    static void forgetClip(Prm::Parameter<unsigned int>& clip, unsigned int clipId);
    /// Multiplies the set's size-like keyframes by `factor`; the second argument is ignored by every set.
    /// Nothing here.
    virtual void rescale(float factor, float unused);
    /// Runs `forgetClip` over the set's clip references. Nothing here.
    virtual void removeReferencesToClip(unsigned int clipId);

    /// A new moved parameter without a target: a line with the old name is taken and changes nothing.
    static MovedParameterHandle newMovedParameter(char const* name);

protected:
    /// `addParameter` on each, in order.
    void vAddParameters(std::initializer_list<Prm::ParameterWithoutType*> parameters);
    /// `forgetClip` on each, in order.
    static void vForgetClips(std::initializer_list<Prm::Parameter<unsigned int>*> clips, unsigned int clipId);
    /// `hide(bHide)` on each.
    static void vHide(std::initializer_list<Prm::ParameterWithoutType*> parameters, bool bHide);
    /// The common assignment of a set `Set` whose members are gathered in `Members`: nothing on
    /// self-assignment (false); else `Prm::ParameterSet::operator=` (both names), the members (a numeric
    /// parameter's own assignment is the parameter's plus its limits; a moved-parameter handle then shares
    /// the source's object), `moved` listed anew, and last the virtual `setScriptName` with the source's
    /// script name (true).
    template <class Members, class Set>
    bool bAssignSet(Set const& other, std::initializer_list<MovedParameterHandle const*> moved)
    {
        if (&other == this)
            return false;
        Prm::ParameterSet::operator=(other);
        static_cast<Members&>(static_cast<Set&>(*this)) = other;
        vListMovedParameters(moved);
        setScriptName(other.qstrScriptName());
        return true;
    }
    /// Makes `basicParameters` list exactly these moved parameters, in order. Call it from `init()` and
    /// again after assigning the handles, whose objects may have changed.
    void vListMovedParameters(std::initializer_list<MovedParameterHandle const*> moved);
};

} // namespace TQ
