#pragma once
#include "prm/curve/Cache.h"
#include "prm/curve/Interpolation.h"
#include "prm/ParameterChange.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVector>
#include <boost/function.hpp>
#include <typeinfo>

class QTextStream;

namespace Bsc {
class AbstractData;
class CompositeCommand;
} // namespace Bsc

namespace Prm {

class ParameterSet;

/// Untyped view of a keyframable parameter: names, visibility, the master it follows, the change signal,
/// and every typed operation as a virtual one (implemented by `Prm::Parameter<T>`).
///
/// The object is a QObject and so cannot be copied by the compiler; derived constructors and assignment
/// copy the protected fields themselves. The master is held through a guard: it reads as null once the
/// master is destroyed, and the parameter then reads its own data again. Followers are kept the same way,
/// so either side may die first. Nothing here throws.
class ParameterWithoutType : public QObject {
    Q_OBJECT
public:
    /// Empty names, no master, not hidden, no owner.
    ParameterWithoutType();
    /// Copies names, master link and visibility; not the owner and not the followers.
    ParameterWithoutType(ParameterWithoutType const& other);
    ~ParameterWithoutType() override;

    QString const& qstrScriptName() const { return scriptName; }
    QString const& qstrDisplayName() const { return displayName; }
    bool isHidden() const { return bHidden; }
    /// The master this parameter follows, or null (also once the master is gone).
    QObject* master() const { return masterParameter.data(); }
    QString const& qstrMasterParameterId() const { return masterParameterId; }
    /// The owning set's script name, a dot and the script name; only the script name outside a set.
    QString extendedName() const;
    /// The set that registered this parameter with `addParameter`, or null.
    ParameterSet const* owner() const { return pOwner; }

    void hide(bool bHide);

    /// Called on the master with the parameter that is to follow it. Refuses (false) a null follower, this
    /// parameter itself, a follower of another value type, and a follower whose link would close a cycle
    /// of masters. On success the follower's master is this parameter and its `masterParameterId` this
    /// parameter's extended name; a follower of another master leaves that one first.
    bool bAddConstrainedParameter(ParameterWithoutType* follower);
    /// Called on the follower: ends its constraint. False when it follows nothing.
    bool bUnconstrain();
    /// The live followers, in the order they were added.
    QVector<ParameterWithoutType*> constrainedParameters() const;

    virtual void setDisplayName(QString const& name);
    virtual void setScriptName(QString const& name);
    virtual QString keyframeSuffixString(float time) const = 0;
    virtual QString valueString(float time, Cache* cache) const = 0;
    virtual void setValueFromString(QString const& text, float time) = 0;
    virtual bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const = 0;
    virtual bool streamInValue(QString const& line, boost::function<QString(QString const&)> textFilter) = 0;
    virtual void vSetExtrapolationBefore(Extrapolation extrapolation) = 0;
    virtual void vSetExtrapolationAfter(Extrapolation extrapolation) = 0;
    virtual void vSetInterpolation(Interpolation interpolation, float time) = 0;
    virtual void vSetInterpolationData(IType data, unsigned int index) = 0;
    virtual void vSetDefaultInterpolation(Interpolation interpolation) = 0;
    virtual Extrapolation extrapolationBefore() const = 0;
    virtual Extrapolation extrapolationAfter() const = 0;
    virtual Interpolation interpolation(float time) const = 0;
    virtual Interpolation interpolation(unsigned int index) const = 0;
    virtual IType interpolationData(unsigned int index) const = 0;
    virtual Bsc::CompositeCommand& vSetInterpolationCommand(Interpolation interpolation, float time,
                                                            Bsc::CompositeCommand& composite) = 0;
    virtual Bsc::CompositeCommand& vSetInterpolationDataCommand(IType data, unsigned int index,
                                                                Bsc::CompositeCommand& composite) = 0;
    virtual Bsc::CompositeCommand& vSetExtrapolationBeforeCommand(Extrapolation extrapolation,
                                                                  Bsc::CompositeCommand& composite) = 0;
    virtual Bsc::CompositeCommand& vSetExtrapolationAfterCommand(Extrapolation extrapolation,
                                                                 Bsc::CompositeCommand& composite) = 0;
    virtual bool isKeyframed() const = 0;
    virtual unsigned int keyframeCount() const = 0;
    virtual float keyframeTime(unsigned int index) const = 0;
    virtual bool bKeyframeAt(float time) const = 0;
    virtual bool bNearestKeyframeTime(float time, float& nearest) const = 0;
    virtual bool bNearestKeyframeIndex(float time, unsigned int& nearest) const = 0;
    virtual bool bPreviousKeyframe(float time, float& previous) const = 0;
    virtual bool bNextKeyframe(float time, float& next) const = 0;
    virtual int iAddKeyframe(float time) = 0;
    virtual void vDeleteKeyframe(float time) = 0;
    virtual void vDeleteAllKeyframes() = 0;
    virtual void vReset(float time) = 0;
    virtual Bsc::CompositeCommand& vAddKeyframeCommand(float time, Bsc::CompositeCommand& composite) = 0;
    virtual void createKeyframeDeletion(float time, Bsc::CompositeCommand& composite) = 0;
    virtual Bsc::CompositeCommand& vDeleteAllKeyframesCommand(Bsc::CompositeCommand& composite) = 0;
    virtual Bsc::CompositeCommand& vResetCommand(float time, Bsc::CompositeCommand& composite) = 0;
    virtual QVariant exportValueAt(float time) const = 0;
    virtual void importValueAt(float time, QVariant const& value) = 0;
    virtual std::type_info const* tRawValueType() const = 0;
    virtual void rawValue(float time, Bsc::AbstractData& out) const = 0;
    virtual int vSetRawValue(Bsc::AbstractData const& value, float time) = 0;
    /// Pushes one edit that ends this parameter's constraint (and restores it on undo).
    virtual bool bUnconstrainCommand(Bsc::CompositeCommand& composite);
    virtual Bsc::CompositeCommand& bAddConstrainedParameterCommand(ParameterWithoutType* follower,
                                                                   Bsc::CompositeCommand& composite) = 0;
    /// Pushes one edit that ends `follower`'s constraint to this parameter (and restores it on undo).
    virtual bool bRemoveConstrainedParameterCommand(ParameterWithoutType* follower, Bsc::CompositeCommand& composite);
    virtual void vCopyKeyframeDataFrom(ParameterWithoutType const* source) = 0;
    /// Reads one line relative to this parameter, as its set hands it on; true when taken. Here the line
    /// goes to `streamInValue` without a text filter; a numeric parameter reads it through its
    /// `bStreamIn`, which also repairs what a failed key line leaves behind. Declared last, so that the
    /// operations above keep their places in the table of virtual functions that callers build against.
    virtual bool bStreamInLine(QString const& line);

signals:
    /// Delivered synchronously after the state has changed; silent while signals are blocked.
    void changed(Prm::ParameterChange& change);

protected:
    /// Raises `changed` with one index.
    void vRaise(ParameterChange::ParameterChanges kind, unsigned int index);
    /// Follows `newMaster` (null: none), keeping both masters' follower lists in step. Refuses (false)
    /// this parameter itself and a master whose own chain of masters leads back here.
    bool bFollow(ParameterWithoutType* newMaster);
    /// The master in its untyped view, or null.
    ParameterWithoutType* masterBase() const { return qobject_cast<ParameterWithoutType*>(masterParameter.data()); }
    /// Sets `scriptName` without the virtual setter, telling the sets' name indexes when it changes. A
    /// subclass that writes `scriptName` after construction goes through here.
    void vAssignScriptName(QString const& name);
    /// Whether the chain of masters that starts at `start` (itself included) reaches this parameter.
    bool bIsInChainOf(ParameterWithoutType const* start) const;

    QString displayName;
    QString scriptName;
    QPointer<QObject> masterParameter;
    QString masterParameterId;
    bool bHidden;

private:
    friend class ParameterSet;

    ParameterSet const* pOwner;
    QVector<QPointer<ParameterWithoutType>> followers;
};

} // namespace Prm
