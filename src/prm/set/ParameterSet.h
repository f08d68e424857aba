#pragma once
#include "prm/text/ParameterLineRouter.h"
#include "prm/set/ParameterTree.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <QVector>
#include <boost/function.hpp>

class QTextStream;

namespace Prm {

class BasicParameter;
class ParameterWithoutType;

/// A named group of parameters, streamed as one block of text; not a QObject.
///
/// Parameters added with `addParameter` are members of the subclass: the set does not own them and only
/// watches them through guards. `basicParameters` are deleted with the set when `bBasicParametersOwned`
/// is set. `childSets` point at members of the owner and are never owned. Subclasses copy by constructing
/// this base afresh with their fixed name and registering their own members again.
class ParameterSet {
public:
    /// `name` is the set's fixed name (both script and display name); `tree` is always null here.
    ParameterSet(QString const& name, ParameterTree* tree);
    /// A fresh set with the other's names and nothing registered.
    ParameterSet(ParameterSet const& other);
    virtual ~ParameterSet();

    virtual void setDisplayName(QString const& name);
    /// Sets the display name and the script name at once.
    virtual void setDisplayName(QString const& displayName, QString const& scriptName);
    virtual void setScriptName(QString const& name);
    /// Writes every added parameter, then `basicParameters`, then `childSets`.
    virtual bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify);
    /// Hands one line, relative to the set, to the parameter or child set it names; true when taken. A line
    /// that names nothing the set holds but starts with the set's own script name and a dot (as a qualified
    /// `bStreamOut` writes it) is read without that name. False, the set unchanged, for any other line.
    virtual bool bStreamIn(QString const& line);
    /// Gives the set both names at once.
    virtual void assignName(QString const& name);

    /// Appends a parameter; the order of the calls is the order of the text. Null is ignored.
    void addParameter(ParameterWithoutType* parameter);
    /// Calls `function` on every live parameter of the set, in `addParameter` order; with `bRecursive`
    /// also on those of the child sets, depth first.
    void forEachParameter(boost::function<void(ParameterWithoutType*)> function, bool bRecursive) const;
    /// Assigns the names only: the parameters are the subclass's to assign.
    ParameterSet& operator=(ParameterSet const& other);

    QString const& qstrScriptName() const { return scriptName; }
    QString const& qstrDisplayName() const { return displayName; }
    /// The live added parameters, in order.
    QVector<ParameterWithoutType*> parameterList() const;
    QVector<BasicParameter*> const& basicParameterList() const { return basicParameters; }
    QVector<ParameterSet*> const& childSetList() const { return childSets; }
    /// The first added parameter with this script name, or null.
    ParameterWithoutType* findParameter(QString const& scriptName) const;

protected:
    QVector<BasicParameter*> basicParameters;
    QVector<ParameterSet*> childSets;
    bool bBasicParametersOwned;

private:
    /// `bStreamIn` with the line cut at its first dot.
    bool bStreamInParts(QStringView name, QString const& rest);
    /// Hands a line to the child sets at `children`, all named `name`; among several, first to the one
    /// whose block the line continues.
    bool bStreamInChild(QStringView name, QString const& rest, QVector<int> const& children);
    /// Where the lines of `name` may go, from the router's name index.
    LineTargets const& targetsOf(QStringView name);
    /// Where a parameter, basic parameter or child named `name` stands in this set's text, -1 for none.
    int iTextPosition(QStringView name);

    QString displayName;
    QString scriptName;
    QVector<QPointer<ParameterWithoutType>> parameters;
    // Reading state, never copied or assigned: the name index and the choice among parameters that
    // share a name.
    ParameterLineRouter lineRouter;
    // The rest of the line being read, kept for its capacity; a line that comes back to this set while it
    // reads one gets a fresh string instead.
    QString restBuffer;
    bool bLineBuffersInUse;
};

} // namespace Prm
