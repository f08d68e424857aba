#pragma once
#include "prm/basic/BasicParameter.h"

#include <QPointer>
#include <QString>

namespace Prm {

/// An old script name kept readable after what it named has moved.
///
/// Writes nothing, so the old name leaves new text; a line with the old name is handed to `target`. The
/// target is not owned and may be null (every set of the library passes null): then the line is taken
/// and nothing changes, so old text still loads. A target destroyed later reads as null.
class MovedParameter : public BasicParameter {
    Q_OBJECT
public:
    MovedParameter(QString const& scriptName, BasicParameter* target);
    ~MovedParameter() override;

    /// Writes nothing; true.
    bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const override;
    /// The target's result for `line`; true without a target.
    bool bStreamIn(QString const& line) override;
    QString const& scriptName() const override;
    BasicParameter* targetParameter() const;

protected:
    QString qstrName;
    QPointer<BasicParameter> target;
};

} // namespace Prm
