#pragma once
/// Builders of the lookup tables that convert pixel values between encoded and linear forms: a power
/// curve, the logarithmic film curve (reference black, reference white, soft clip) and the fixed
/// Panalog curve, each in both directions and for 8-bit, 16-bit and float output entries.
///
/// Ownership: the caller allocates every table and every output float, keeps ownership and frees them;
/// the builders keep no state and no pointer after they return. A table for `bits` below 32 has
/// `2^bits` entries. The integer-output linear-to-log, linear-to-Panalog and gamma builders also accept
/// `bits` 32 (floating point input): the table then has 65536 entries in two segments of 32768,
/// `forward` must hold the matching forward float table (256 entries for 8-bit output, 65536 for 16-bit)
/// and the five output floats receive, in order, the low segment's scale and offset, the split, and the
/// high segment's scale and offset. A value at or below the split is looked up at index
/// `(x - lowOffset) * lowScale`, any other at `(x - highOffset) * highScale`. For `bits` below 32 the
/// five floats and `forward` are neither read nor written and may be null.
///
/// Failure: every builder returns true when it wrote its table. The float-output linear-to-log,
/// linear-to-Panalog and gamma builders cannot build for `bits` 32: they then leave exactly one entry on
/// the calling thread's Gandalf error trace (see gandalf/Error.h) and return false, with the table
/// unwritten except that the gamma builders have set entry 0 to 0 (when the table is not null). Otherwise
/// a null table or forward table where one is needed, or `bits` outside 0 to 32, gives false with nothing
/// written and no trace entry.
/// `gamma` is not validated: 0 makes the divisions yield infinities and the tables garbage.

/// Log to linear. `offset` is the code value of entry 0; `refWhite` and `refBlack` are code values
/// (0 to 1024); a `softClip` of 0 turns the soft shoulder off. `bits` 32 means a 2-entry table.
bool gbCreate8BitLogLinLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                              float softClip, unsigned char* table);
bool gbCreate16BitLogLinLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                               float softClip, unsigned short* table);
/// The float entries are not clipped: codes under reference black give negative values.
bool gbCreate32BitFloatLogLinLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                                    float softClip, float* table);

/// Linear to log; the inverse of the above with the same arguments. See the file comment for `bits` 32.
bool gbCreate8BitLinLogLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                              float softClip, unsigned char* table, float* lowScale, float* lowOffset,
                              float* split, float* highScale, float* highOffset, float* forward);
bool gbCreate16BitLinLogLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                               float softClip, unsigned short* table, float* lowScale, float* lowOffset,
                               float* split, float* highScale, float* highOffset, float* forward);
/// Writes 0.5 into every entry (the float output has no code scale); fails for `bits` 32.
bool gbCreate32BitFloatLinLogLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                                    float softClip, float* table, float* lowScale, float* lowOffset,
                                    float* split, float* highScale, float* highOffset, float* forward);

/// Panalog to linear. With `normalised` false, codes at or below 64 give 0 and codes above 1019 the
/// type's maximum; with `normalised` true the curve is scaled by one sixth and not limited.
bool gbCreate8BitPanalogLinLookup(int bits, unsigned char* table, bool normalised);
bool gbCreate16BitPanalogLinLookup(int bits, unsigned short* table, bool normalised);
/// With `normalised` false every entry is 0.
bool gbCreate32BitFloatPanalogLinLookup(int bits, float* table, bool normalised);

/// Linear to Panalog, limited to the codes 64 to 1019. See the file comment for `bits` 32.
bool gbCreate8BitLinPanalogLookup(int bits, unsigned char* table, float* lowScale, float* lowOffset,
                                  float* split, float* highScale, float* highOffset, float* forward);
bool gbCreate16BitLinPanalogLookup(int bits, unsigned short* table, float* lowScale, float* lowOffset,
                                   float* split, float* highScale, float* highOffset, float* forward);
/// Writes 0 into every entry (the float output has no code scale); fails for `bits` 32.
bool gbCreate32BitFloatLinPanalogLookup(int bits, float* table, float* lowScale, float* lowOffset,
                                        float* split, float* highScale, float* highOffset, float* forward);

/// Power curve: entry i is `top * (i / maxIndex)^(1 / gamma)`, rounded in the integer tables.
bool gbCreate8BitGammaLookup(int bits, float gamma, unsigned char* table, float* lowScale, float* lowOffset,
                             float* split, float* highScale, float* highOffset, float* forward);
bool gbCreate16BitGammaLookup(int bits, float gamma, unsigned short* table, float* lowScale,
                              float* lowOffset, float* split, float* highScale, float* highOffset,
                              float* forward);
/// Entries run from 0 to 1; fails for `bits` 32.
bool gbCreate32BitFloatGammaLookup(int bits, float gamma, float* table);
/// Same as gbCreate32BitFloatGammaLookup; the six trailing pointers are ignored. It gives the float
/// member the argument list of the integer gamma builders.
bool gbCreate32BitFloatGammaLookupDummy(int bits, float gamma, float* table, float* lowScale,
                                        float* lowOffset, float* split, float* highScale,
                                        float* highOffset, float* forward);
