#pragma once
/// Text form of the two value types that QTextStream does not print as numbers of their own:
/// `bool` and `unsigned char`. They are global, beside Qt's own operators, so that the value
/// templates find them by ordinary lookup.

class QTextStream;

/// Writes `1` or `0`.
QTextStream& operator<<(QTextStream& stream, bool const& value);
/// Writes the value as a decimal number (0 to 255), not as a character.
QTextStream& operator<<(QTextStream& stream, unsigned char const& value);

/// Skips blanks, then reads one word of letters and digits (with an optional sign). A number is true when
/// not 0; "true" and "false" are accepted in any case. The character that ends the word (a comma in a key
/// line) is left in the stream. On a word that is neither, `value` becomes false and the status
/// ReadCorruptData; at the end of the text, ReadPastEnd.
QTextStream& operator>>(QTextStream& stream, bool& value);
/// Reads a decimal integer and keeps its low 8 bits. On failure `value` becomes 0 and the stream's status
/// tells why, as for Qt's integer readers.
QTextStream& operator>>(QTextStream& stream, unsigned char& value);
