#pragma once
#include "Fixtures.h"
#include "prm/NumericParameter.h"
#include "prm/text/CurveTypeNames.h"

#include <limits>
#include <memory>

/// A numeric parameter limited to `limits` (two words) or, without them, to the whole range of `T`.
template <class T>
std::unique_ptr<Prm::ParameterWithoutType> numericCase(bool bKeyed, char const* name, Prm::Interpolation i,
                                                      Prm::Extrapolation e, QStringList const& limits)
{
    bool const b = limits.size() == 2;
    return std::make_unique<Prm::NumericParameter<T>>(bKeyed, name, T(),
                                                      b ? T(limits[0].toDouble()) : std::numeric_limits<T>::lowest(),
                                                      b ? T(limits[1].toDouble()) : std::numeric_limits<T>::max(), i, e);
}

/// The parameter of a case line "@ type name keyed interpolation extrapolation [minimum maximum]".
inline std::unique_ptr<Prm::ParameterWithoutType> caseParameter(QStringList const& words)
{
    Prm::Interpolation i{};
    Prm::Extrapolation e{};
    if (words.size() < 6 || !Prm::bStringToInterpolationType(words[4], i) ||
        !Prm::bStringToExtrapolationType(words[5], e))
        return nullptr;
    bool const b = words[3] == "1";
    QByteArray const name = words[2].toUtf8();
    if (words[1] == "double")
        return std::make_unique<Prm::Parameter<double>>(b, name.data(), 0.0, i, e);
    if (words[1] == "text")
        return std::make_unique<Prm::Parameter<QString>>(b, name.data(), QString(), i, e);
    if (words[1] == "count")
        return numericCase<int>(b, name.data(), i, e, words.mid(6));
    return words[1] == "number" ? numericCase<double>(b, name.data(), i, e, words.mid(6)) : nullptr;
}

/// Runs the cases of the data file `tests/prm/data/<name>`; ParameterText.txt's head describes the format.
inline void vRunTextCases(char const* name)
{
    QStringList const lines = qstrDataFile(name).split('\n') << "@ end";
    LogCapture log;
    std::unique_ptr<Prm::ParameterWithoutType> p;
    std::string expected, expectedLog;
    for (int number = 1; number <= lines.size(); ++number) {
        QString const& line = lines[number - 1];
        QChar const mark = line.isEmpty() ? QChar('#') : line[0];
        std::string const rest = line.mid(2).toStdString() + '\n';
        std::string const written = p ? qstrStreamed(*p, "").toStdString() : std::string();
        std::string const where = std::string(name) + " line " + std::to_string(number) + ": " + line.toStdString();
        if (mark != '=' && !expected.empty()) {
            EXPECT_EQ(written, expected) << where;
            expected.clear();
        }
        if (mark == '@' && p) {
            std::string logged;
            for (auto const& text : log.lines)
                logged += text + '\n';
            EXPECT_EQ(logged, expectedLog) << "the log of the case ending before " << where;
            log.lines.clear();
            expectedLog.clear();
        }
        if (mark == '@' && number < lines.size())
            ASSERT_TRUE(p = caseParameter(line.split(' '))) << where;
        else if (mark == '+' || mark == '-')
            EXPECT_EQ(p->bStreamInLine(line.mid(2)), mark == '+') << where;
        else if (mark == '~')
            EXPECT_NE(written.find(rest), std::string::npos) << where << "\nin:\n" << written;
        else if (mark == '?')
            EXPECT_EQ(p->valueString(line.section(' ', 1, 1).toFloat(), nullptr).toStdString(),
                      line.section(' ', 2).toStdString()) << where;
        else if (mark == '=')
            expected += rest;
        else if (mark == '!')
            expectedLog += rest;
    }
}
