// Feeds arbitrary bytes, as UTF-8 text, to the whole-text reader of a set holding parameters of several
// value types, a shared script name, a basic parameter and a nested child set, then writes the set out,
// reads it everywhere, rescales two curves and reads the written text again.
#include "bsc/Logger.h"
#include "prm/NumericParameter.h"
#include "prm/set/ParameterSet.h"
#include "prm/text/ParameterTextDocument.h"
#include "support/EnumerationParameters.h"
#include "prm/basic/VirtualParameter.h"

#include <QString>
#include <cstddef>
#include <cstdint>

namespace {

class FuzzChild : public Prm::ParameterSet {
public:
    FuzzChild()
        : Prm::ParameterSet("ROI", nullptr),
          width(true, "Width", 1.0f, 0.0f, 100.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear),
          mode(true, "Mode", TQ_BlendMode(0), Prm::InterpolationStep, Prm::ExtrapolationHold)
    {
        addParameter(&width);
        addParameter(&mode);
    }
    Prm::NumericParameter<float> width;
    Prm::Parameter<TQ_BlendMode> mode;
};

class FuzzSet : public Prm::ParameterSet {
public:
    FuzzSet()
        : Prm::ParameterSet("Core", nullptr),
          gain(true, "Gain", 0.5, 0.0, 10.0, Prm::InterpolationLinear, Prm::ExtrapolationLinear),
          count(true, "Count", 3, -5, 5, Prm::InterpolationStep, Prm::ExtrapolationHold),
          clip(true, "InputClipID", 1u, 0u, 100u, Prm::InterpolationStep, Prm::ExtrapolationHold),
          on(true, "On", true, false, true, Prm::InterpolationStep, Prm::ExtrapolationHold),
          level(true, "Level", 7, 0, 255, Prm::InterpolationLinear, Prm::ExtrapolationHold),
          label(true, "Label", QString("none"), Prm::InterpolationStep, Prm::ExtrapolationHold),
          first(true, "HomograpyZX", 0.0, -1e9, 1e9, Prm::InterpolationLinear, Prm::ExtrapolationHold),
          second(true, "HomograpyZX", 0.0, -1e9, 1e9, Prm::InterpolationLinear, Prm::ExtrapolationHold)
    {
        for (Prm::ParameterWithoutType* parameter :
             std::initializer_list<Prm::ParameterWithoutType*>{&gain, &count, &clip, &on, &level, &label, &first,
                                                               &second})
            addParameter(parameter);
        basicParameters.append(new Prm::VirtualParameter<QString>("Path", &path));
        bBasicParametersOwned = true;
        childSets.append(&roi);
    }
    Prm::NumericParameter<double> gain;
    Prm::NumericParameter<int> count;
    Prm::NumericParameter<unsigned int> clip;
    Prm::NumericParameter<bool> on;
    Prm::NumericParameter<unsigned char> level;
    Prm::Parameter<QString> label;
    Prm::NumericParameter<double> first;
    Prm::NumericParameter<double> second;
    QString path;
    FuzzChild roi;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, std::size_t size)
{
    static bool const bQuiet = [] {
        Bsc::Logger::instance().setSink([](std::string const&) {});
        return true;
    }();
    (void)bQuiet;
    FuzzSet set;
    Prm::ParameterTextDocument document(set);
    document.iRead(QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size)));
    // Everything read must write again and evaluate anywhere.
    QString const text = document.qstrWrite();
    for (float time : {-1e30f, -1.0f, 0.0f, 0.5f, 3.0f, 1e30f}) {
        set.gain.value(time, nullptr);
        set.count.value(time, nullptr);
        set.clip.value(time, nullptr);
        set.on.value(time, nullptr);
        set.level.value(time, nullptr);
        set.label.value(time, nullptr);
        set.roi.width.value(time, nullptr);
    }
    // Rescaling walks the keys as read, NaN and infinite times included: it must end.
    set.clip *= 1.5;
    set.roi.width *= -0.5;
    for (float time : {-1e30f, 0.0f, 3.0f}) {
        set.clip.value(time, nullptr);
        set.roi.width.value(time, nullptr);
    }
    FuzzSet again;
    Prm::ParameterTextDocument(again).iRead(text);
    return 0;
}
