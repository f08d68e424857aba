// Feeds arbitrary bytes, as UTF-8 text, to the whole-text reader of a colour set, whose four bands share
// one name and are told apart by the order of the lines, and of an insert set with its children and its
// moved parameter; then writes both, reads that text again and evaluates every parameter.
#include "bsc/Logger.h"
#include "modules/ColourParameterSet.h"
#include "modules/InsertParameterSet.h"
#include "prm/NumericParameterWithoutType.h"
#include "prm/ParameterTextDocument.h"

#include <QString>
#include <cstddef>
#include <cstdint>

namespace {

template <class S>
void vReadWriteRead(QString const& input)
{
    S set(nullptr);
    Prm::ParameterTextDocument document(set);
    document.iRead(input);
    QString const text = document.qstrWrite();
    set.forEachParameter(
        [](Prm::ParameterWithoutType* parameter) {
            for (float time : {-1e30f, 0.0f, 2.5f, 1e30f}) {
                parameter->valueString(time, nullptr);
                if (auto* numeric = dynamic_cast<Prm::NumericParameterWithoutType*>(parameter))
                    numeric->value2DisplayAsDouble(numeric->valueAsDouble(time, nullptr), time);
            }
        },
        true);
    S again(nullptr);
    Prm::ParameterTextDocument(again).iRead(text);
}

// The colour set takes no container; this gives both sets one shape of constructor.
struct ColourSet : TQ_ColourParameterSet {
    explicit ColourSet(std::nullptr_t) {}
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, std::size_t size)
{
    static bool const bQuiet = [] {
        Bsc::Logger::instance().setSink([](std::string const&) {});
        return true;
    }();
    (void)bQuiet;
    QString const input = QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size));
    vReadWriteRead<ColourSet>(input);
    vReadWriteRead<TQ_InsertParameterSet>(input);
    return 0;
}
