#pragma once
/// A small self-registering family of blend functions of two floats, with a registry by id that fills
/// itself while the shared library loads. Adding a mode takes one class and one static RegHelper; nothing
/// else changes. The library keeps the family for its host and calls none of it itself.
///
/// The registry is read-only once loaded; lookups must not race with registerBlendMode.

#include <QMap>
#include <QString>
#include <boost/shared_ptr.hpp>
#include <string>

/// Ids of the registered modes. Not the same thing as the persisted TQ_BlendMode.
enum AEBlendModeID : int { AE_BLEND_MODE_ADD = 1, AE_BLEND_MODE_SUBTRACT = 2, AE_BLEND_MODE_MULTIPLY = 3 };

class BlendMode {
public:
    using MapById = QMap<AEBlendModeID, boost::shared_ptr<BlendMode> >;

    BlendMode(AEBlendModeID eId, QString const& qstrName);
    virtual ~BlendMode();

    /// The mode's function, in single precision. Pure: no state is read or written.
    virtual float blend(float a, float b) const = 0;

    /// The registry, a function-local static, so it exists whenever the first RegHelper runs.
    static MapById& getMapById();
    static int getBlendModeCount();
    /// All names in ascending id, joined with "|": "Add|Subtract|Multiply".
    static std::string getConcatenatedNames();
    /// The registered mode with that id; an unknown id silently gives the mode with the lowest id.
    /// Not owned: valid while its entry stays in the registry. Null only while the registry is empty.
    static BlendMode* fromID(AEBlendModeID eId);
    /// Enters `mode` under its eId, replacing any mode already there. A null `mode` is ignored.
    static void registerBlendMode(boost::shared_ptr<BlendMode> mode);

    AEBlendModeID const eId;
    QString const qstrName;
};

/// a + b, saturated above at 1 with no lower limit; NaN stays NaN.
class AddBlendMode : public BlendMode {
public:
    AddBlendMode();
    float blend(float a, float b) const override;

    /// Registers an AddBlendMode when constructed.
    class RegHelper {
    public:
        RegHelper();
    };
    static RegHelper regHelper;
};

/// a - b, floored at 0 with no upper limit; NaN stays NaN.
class SubtractBlendMode : public BlendMode {
public:
    SubtractBlendMode();
    float blend(float a, float b) const override;

    /// Registers a SubtractBlendMode when constructed.
    class RegHelper {
    public:
        RegHelper();
    };
    static RegHelper regHelper;
};

/// a * b, neither saturated nor floored.
class MultiplyBlendMode : public BlendMode {
public:
    MultiplyBlendMode();
    float blend(float a, float b) const override;

    /// Registers a MultiplyBlendMode when constructed.
    class RegHelper {
    public:
        RegHelper();
    };
    static RegHelper regHelper;
};
