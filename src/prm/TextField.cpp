#include "prm/TextField.h"

namespace Prm {

TextField eTextField(QString const& line)
{
    struct Word {
        char const* text;
        TextField field;
    };
    static Word const words[] = {
        {"keyframes", TextField::Keyframes}, {"value", TextField::Value},         {"hidden", TextField::Hidden},
        {"keyframed", TextField::Keyframed}, {"before", TextField::Before},       {"after", TextField::After},
        {"MasterParameterId", TextField::MasterParameterId},
    };
    for (Word const& word : words) {
        if (line.startsWith(QLatin1String(word.text), Qt::CaseInsensitive))
            return word.field;
    }
    return TextField::Unknown;
}

QString qstrFieldText(QString const& line)
{
    return line.section(QLatin1Char('='), 1, 1);
}

bool bFlagOfLine(QString const& line)
{
    return qstrFieldText(line).toInt(nullptr, 10) != 0;
}

} // namespace Prm
