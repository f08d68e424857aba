#pragma once
#include <QString>
#include <QVector>

class QTextStream;

namespace Prm {

class ParameterSet;

/// Reads and writes the whole text of a root parameter set: its own lines, its basic parameters and its
/// child sets, each line qualified with the root's script name.
///
/// Holds a reference to the set, which must outlive it. Reading offers every line to the set, then binds
/// the masters named by `MasterParameterId=` lines by extended name, so masters may come after their
/// followers. Bad input never stops a read and never undoes what was read: every line not taken is
/// reported (and logged) with its number, and a missing or refused master is logged and left unbound.
class ParameterTextDocument {
public:
    /// A line that no parameter took; numbers count from 1.
    struct UnreadLine {
        int iLineNumber;
        QString qstrText;
    };

    explicit ParameterTextDocument(ParameterSet& set);

    /// Writes every line of the set, qualified with its script name. Always true.
    bool bWrite(QTextStream& out) const;
    QString qstrWrite() const;

    /// Offers each line to the set: the root's "Name." is stripped when the line carries it, and blank
    /// lines are skipped. Then binds masters. Returns the number of lines taken; `unreadLines` lists the
    /// others, replacing those of an earlier read. A text gives the lines that a QTextStream on it gives.
    int iRead(QTextStream& in);
    int iRead(QString const& text);

    QVector<UnreadLine> const& unreadLines() const { return unread; }

private:
    /// Offers line `number` (`size` characters at `chars`, which must not be `line`'s) to the set unless it
    /// is blank, counting it in `taken` or listing and logging it as unread. `line` is the buffer that
    /// carries it to the set.
    void vOfferLine(int number, QChar const* chars, int size, QString& line, int& taken);
    void vBindMasters() const;

    ParameterSet& set;
    QVector<UnreadLine> unread;
};

} // namespace Prm
