#pragma once
#include <QObject>
#include <QString>

class QTextStream;

namespace Prm {

/// Untyped view of a parameter without keyframes: streamed with its set, announced by `valueChanged`.
/// Lives on the heap, reached through a set's `basicParameters`; deleted through this virtual destructor.
class BasicParameter : public QObject {
    Q_OBJECT
public:
    /// A null QObject parent: the owning set decides the lifetime.
    BasicParameter();
    ~BasicParameter() override;

    /// Writes the parameter's line(s) under `prefix`.
    virtual bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const = 0;
    /// Reads one line that has lost its prefix; true when taken.
    virtual bool bStreamIn(QString const& line) = 0;
    /// The name in the text format; the reference lives as long as the parameter.
    virtual QString const& scriptName() const = 0;

signals:
    void valueChanged();
};

} // namespace Prm
