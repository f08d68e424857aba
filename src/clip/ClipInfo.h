#pragma once

#include "bsc/FSPercentEscapedString.h"
#include "clip/ColourspaceParameters.h"
#include "gandalf/Image.h"
#include "gandalf/List.h"
#include "prm/set/ParameterSet.h"
#include "support/Enumerations.h"

#include <QByteArray>
#include <QString>

#include <memory>

class QTextStream;

/// Where a clip's images are and how to read them: a numbered file sequence or a list of discrete frames,
/// the pixel format of the files, and the colourspace with its lookup tables.
///
/// A parameter set named "Core" whose fields are plain public members, each streamed through a
/// heap-allocated virtual parameter bound to it; the parameters are rebuilt by `init` and freed with the
/// object. Besides the parameter lines its text has one line per discrete frame, "Frames.keyframes.append(
/// DiscreteFrame( name, number ) )". Nothing here throws; a line nobody takes is refused with false.
///
/// The discrete frame list is a Gandalf list of `DiscreteFrame` records owned by the clip. A copy of a clip
/// with "DiscreteFrames" set gets its own list; a copy of any other clip shares the list it points at, and
/// the shared list lives until the last clip holding it is gone.
class TQ_ClipInfo : public Prm::ParameterSet
{
public:
    /// One discrete frame: the file name as UTF-8 up to its first NUL byte, kept whole at any length, and
    /// its frame number.
    struct DiscreteFrame {
        QByteArray name;
        unsigned int frame;
    };

    /// Named "Core", a numbered sequence with every default, no frame list and no tables; the text holds
    /// the sequence parameters.
    TQ_ClipInfo();
    /// Copies every member, the colourspace with its tables and the header as bytes; the frame list by the
    /// rule in the class comment. The display names are not copied; new parameters bind to the copy.
    TQ_ClipInfo(TQ_ClipInfo const& other);
    ~TQ_ClipInfo() override;
    /// Copies every member and both names, frees this clip's own list first and takes the other's list by
    /// the rule in the class comment. The parameters stay bound to this object and are not rebuilt.
    TQ_ClipInfo& operator=(TQ_ClipInfo const& other);

    /// Rebuilds the virtual parameters in text order, with the six sequence parameters ("ClipDirectory" to
    /// "IndexWidth") only when `withSequenceParameters` is true. Pointers into the old list die here.
    void init(bool withSequenceParameters);
    /// "ClipDirectory/ClipPrefix[index]ClipSuffix": the directory without trailing '/' or '\', the index
    /// ("MinimumIndex" zero-padded to "IndexWidth", at most 2^20 digits) only when "HasIndex" is 1.
    QString firstFileName() const;
    /// Frees the colourspace's tables and, when a conversion is required, builds all of them for the
    /// current "Colourspace", "Gamma" and film values. Call it after those have their final values.
    void CreateLUTs();
    /// When a conversion is required, "ImageDataTypeOfFile" follows "FloatFormat" and "8BitFormat": float,
    /// 8-bit or else 16-bit data.
    void vRebuildDataTypeOfFile();
    /// A new default clip, owned by the caller, that carries only this clip's image header,
    /// "ImageDataTypeOfFile" and "ImageFormatOfFile".
    TQ_ClipInfo* copyHeaderInfo() const;

    /// Writes the parameters; a clip with "DiscreteFrames" 1 leaves out the six sequence parameters and
    /// adds one line per frame of its list (none without a list). The parameter list keeps the form built
    /// here until `init` runs again.
    bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) override;
    /// Takes a parameter line, or a "Frames." line (any case) that holds "DiscreteFrame( name, number )",
    /// which appends one frame and creates the list when needed; a number above 0xFFFFFFFF reads as 0. A
    /// damaged frame line is refused with false, creating nothing and keeping the frames already read.
    /// Setting "DiscreteFrames" is left to its own line.
    bool bStreamIn(QString const& line) override;

    /// The frame list, or null when none exists. The clip (or the clips sharing it) owns it; walk it with
    /// the Gandalf list functions, whose nodes are `DiscreteFrame` records.
    Gan_List* discreteFrameList() const;
    /// Appends a frame to the list, creating the list when needed; `utf8Name` is copied up to its first
    /// NUL byte.
    void vAppendDiscreteFrame(QByteArray const& utf8Name, unsigned int frame);

    _TQ_BOOL ReadOnly;
    _TQ_BOOL Hidden;
    _TQ_BOOL DiscreteFrames;
    _TQ_BOOL Predefined;
    QString ClipDirectory;
    Bsc::FSPercentEscapedString ClipPrefix;
    Bsc::FSPercentEscapedString ClipSuffix;
    unsigned int MinimumIndex;
    unsigned int MaximumIndex;
    unsigned int IndexWidth;

private:
    // Declared here so that the members keep the order of the clip's description.
    std::shared_ptr<Gan_List> frameList;

public:
    _TQ_BOOL SingleFrame;
    TQ_ColourspaceParameters colourspace;
    _TQ_BOOL Linear;
    _TQ_BOOL Reapply32Pulldown;
    Gan_ImageFormat ImageFormatOfFile;
    Gan_Type ImageDataTypeOfFile;
    unsigned int ProcessBits;
    _TQ_BOOL HasIndex;
    Gan_ImageFormat OriginalImageFormat;
    /// Kept and copied for the application; nothing in the library reads it.
    int sourceDataType;
    /// Header of the image files, copied as bytes.
    Gan_ImageHeaderInfo imageHeaderInfo;
    _TQ_PROXY_SCALE ProxyScale;

private:
    void vCopyMembers(TQ_ClipInfo const& other);
    void vTakeFrameList(TQ_ClipInfo const& other);
    void vDeleteParameters();
    template <class T>
    void vAddVirtual(char const* name, T* member);
};
