/// @file
/// Text functions over C strings and single characters.
#ifndef QEL_CHARFUNCTIONS_H
#define QEL_CHARFUNCTIONS_H

#include <string>

namespace qel {

/// Text functions: classification, case, search, comparison and editing; hexadecimal text; and the
/// recognition, parsing and formatting of numbers.
///
/// All text is 8-bit. Letters, digits and case are ASCII only; bytes 128 to 255 are neither
/// letters nor digits and have no case. A null pointer is checked only where a function says so;
/// elsewhere it is the caller's fault and the call need not return. Texts are below 2 GiB. Every
/// function is reentrant, and takes time linear in the lengths of its texts unless it searches for
/// one in another.
class CharFunctions {
  public:
    /// There are no instances: every function is static.
    CharFunctions() = delete;

    /// @name One character
    /// @{

    /// True for `0` to `9`.
    [[nodiscard]] static bool IsDigit(char c) noexcept;
    /// True for `a` to `z` and `A` to `Z`.
    [[nodiscard]] static bool IsLetter(char c) noexcept;
    /// True for ASCII letters and digits.
    [[nodiscard]] static bool IsLetterOrDigit(char c) noexcept;
    /// True for `a` to `z`.
    [[nodiscard]] static bool IsLowerCase(char c) noexcept;
    /// True for `A` to `Z`.
    [[nodiscard]] static bool IsUpperCase(char c) noexcept;
    /// The upper-case form of `a` to `z`; any other byte unchanged.
    [[nodiscard]] static char ToUpperCase(char c) noexcept;
    /// The lower-case form of `A` to `Z`; any other byte unchanged.
    [[nodiscard]] static char ToLowerCase(char c) noexcept;
    /// The value of a hexadecimal digit of either case, 0 to 15; -1 for anything else.
    [[nodiscard]] static int GetHexDigitValue(char c) noexcept;
    /// The byte that two hexadecimal digits write, 0 to 255; -1 if either is not such a digit.
    [[nodiscard]] static int HexaToInt(char high, char low) noexcept;

    /// @}
    /// @name Whole strings
    /// @{

    /// True when `s` has no bytes. `s` must not be null.
    [[nodiscard]] static bool IsEmpty(char const* s) noexcept { return *s == '\0'; }
    /// The number of bytes before the terminator. `s` must not be null.
    [[nodiscard]] static unsigned int Length(char const* s) noexcept;
    /// True when the first byte is `0` to `9`; false for null.
    [[nodiscard]] static bool StartsWithDigit(char const* s) noexcept {
        return s != nullptr && *s >= '0' && *s <= '9';
    }
    /// True when some byte is 128 or above. `s` must not be null.
    [[nodiscard]] static bool ContainsExtendedAsciiCharacters(char const* s) noexcept;
    /// How many bytes of `s` equal `c`; 0 for null. The terminator never counts.
    [[nodiscard]] static unsigned int CountOccurence(char const* s, char c) noexcept;
    /// True when `s` is exactly one of True, true, TRUE, False, false, FALSE, 0 and 1.
    /// `s` must not be null.
    [[nodiscard]] static bool IsBoolean(char const* s) noexcept;
    /// A copy with `a` to `z` in upper case. `s` must not be null.
    [[nodiscard]] static std::string ToUpperCase(char const* s) noexcept;
    /// A copy with `A` to `Z` in lower case. `s` must not be null.
    [[nodiscard]] static std::string ToLowerCase(char const* s) noexcept;

    /// @}
    /// @name Search
    /// The subject `s` must not be null.
    /// @{

    /// Searches for any one character of `set`, not for `set` as a word. `set` must not be null.
    /// @return the position of the first byte of `s` that occurs in `set`; -1 when there is none.
    [[nodiscard]] static int IndexOfFirstOccurence(char const* s, char const* set) noexcept;
    /// Searches for any one character of `set`, not for `set` as a word. `set` must not be null.
    /// @return the position of the last byte of `s` that occurs in `set`; -1 when there is none.
    [[nodiscard]] static int IndexOfLastOccurence(char const* s, char const* set) noexcept;
    /// True when `part` occurs in `s` as a substring; false for a null or empty `part`.
    [[nodiscard]] static bool Contains(char const* s, char const* part) noexcept;
    /// True when `s` begins with `prefix`, which every text does with the empty one;
    /// false for a null `prefix`.
    [[nodiscard]] static bool StartsWith(char const* s, char const* prefix) noexcept;
    /// The suffix is a set of characters: true when the last byte of `s` is any one of them.
    ///
    /// For a suffix of one character this is the usual test. `EndsWith("abc", "cb")` is true. An
    /// empty `s` ends with every suffix, a non-empty one never with the empty suffix; a null
    /// suffix gives false.
    [[nodiscard]] static bool EndsWith(char const* s, char const* suffix) noexcept;
    /// `StartsWith` on the lower-case forms of both. Neither may be null.
    [[nodiscard]] static bool StartsWithIgnoreCase(char const* s, char const* prefix) noexcept;
    /// `EndsWith`, its set of characters included, on the lower-case forms of both. Neither may
    /// be null.
    [[nodiscard]] static bool EndsWithIgnoreCase(char const* s, char const* suffix) noexcept;

    /// @}
    /// @name Comparison
    /// Negative, zero or positive, as the C library compares; bytes count as unsigned.
    /// @{

    /// Compares byte by byte. Neither may be null.
    [[nodiscard]] static int Compare(char const* a, char const* b) noexcept;
    /// Compares at most the first `n` bytes; -1 when either is null, also when both are.
    [[nodiscard]] static int Compare(char const* a, char const* b, unsigned int n) noexcept;
    /// Compares with `A` to `Z` taken as `a` to `z`, whatever the locale; -1 when either is null,
    /// also when both are.
    [[nodiscard]] static int CompareIgnoreCase(char const* a, char const* b) noexcept;
    /// True when both hold the same bytes. Neither may be null.
    [[nodiscard]] static bool AreEqual(char const* a, char const* b) noexcept;
    /// True when both are equal with ASCII case folded; false when either is null.
    [[nodiscard]] static bool AreEqualIgnoreCase(char const* a, char const* b) noexcept;

    /// @}
    /// @name Raw copies
    /// The caller guarantees room in `destination`; no pointer may be null. The two may overlap:
    /// `source` counts as it was before the call.
    /// @{

    /// Copies `source` with its terminator.
    static void Copy(char* destination, char const* source) noexcept;
    /// Writes no terminator when `source` has `n` bytes or more: exactly `n` bytes are written, and
    /// a shorter source is filled up with zero bytes.
    static void Copy(char* destination, char const* source, unsigned int n) noexcept;
    /// Copies `source` with its terminator behind the text in `destination`.
    static void Append(char* destination, char const* source) noexcept;

    /// @}
    /// @name Building
    /// No pointer may be null.
    /// @{

    /// `a` followed by `b`.
    [[nodiscard]] static std::string Concatenate(char const* a, char const* b) noexcept;
    /// At most `count` bytes of `s` from `start` on; a `start` beyond the length ends the process,
    /// one equal to it gives "".
    [[nodiscard]] static std::string SubStr(char const* s, unsigned int start,
                                            unsigned int count) noexcept;
    /// `s` behind as many `fill` as make `width` bytes. A longer `s` is not cut.
    [[nodiscard]] static std::string PadLeftWith(char const* s, unsigned int width,
                                                 char fill) noexcept;
    /// `s` in front of as many `fill` as make `width` bytes. A longer `s` is not cut.
    [[nodiscard]] static std::string PadWith(char const* s, unsigned int width, char fill) noexcept;
    /// The bytes of `s` from the last to the first.
    [[nodiscard]] static std::string Reverse(char const* s) noexcept;
    /// `s` without the white space in front: space, tab, line feed, vertical tab, form feed and
    /// carriage return.
    [[nodiscard]] static std::string RemoveLeadingSpaces(char const* s) noexcept;
    /// `s` without the white space at its end.
    [[nodiscard]] static std::string RemoveTrailingSpaces(char const* s) noexcept;
    /// `s` without the white space on both sides.
    [[nodiscard]] static std::string RemoveLeadingAndTrailingSpaces(char const* s) noexcept;

    /// @}
    /// @name Replacing and removing
    /// The subject `s` must not be null. A null or empty `old` or `part`, or a null `replacement`,
    /// gives a copy of `s`.
    /// @{

    /// Replaces from the end, and what a replacement brings about is replaced too:
    /// `Replace("aab", "ab", "b")` is "b".
    ///
    /// The last occurrence of `old` in the whole text is replaced until there is none. The time
    /// taken is linear in the lengths of `s` and `old` and of all replacements made.
    /// @pre The replacement does not contain `old`, unless `s` does not either; otherwise it is
    /// replaced for ever (an assert says so first), or until memory runs out. So are some others
    /// that bring `old` about again and again ("ab" by "bbaa" in "abb").
    [[nodiscard]] static std::string Replace(char const* s, char const* old,
                                             char const* replacement) noexcept;
    /// Replaces the first occurrence only, once.
    [[nodiscard]] static std::string ReplaceFirstOccurence(char const* s, char const* old,
                                                           char const* replacement) noexcept;
    /// Replaces the last occurrence only, once.
    [[nodiscard]] static std::string ReplaceLastOccurence(char const* s, char const* old,
                                                          char const* replacement) noexcept;
    /// Removes from the end, and what closes up to `part` is removed too: `Replace` by "".
    /// `RemoveAllOccurence("aabb", "ab")` is "".
    [[nodiscard]] static std::string RemoveAllOccurence(char const* s, char const* part) noexcept;
    /// Keeps only what follows: the text before the first occurrence goes as well.
    /// `RemoveFirstOccurence("abXcd", "X")` is "cd".
    [[nodiscard]] static std::string RemoveFirstOccurence(char const* s, char const* part) noexcept;
    /// Cuts the last occurrence out; the text before it and after it stays.
    [[nodiscard]] static std::string RemoveLastOccurence(char const* s, char const* part) noexcept;

    /// @}
    /// @name Hexadecimal text
    /// `s` and `hex` must not be null.
    /// @{

    /// Writes no leading zeros and extends the sign: a byte below 16 gives one digit, one from 128
    /// on gives eight. "A\n" gives "41a", byte 233 gives "ffffffe9".
    [[nodiscard]] static std::string AsciiToHexaString(char const* s, bool upperCase) noexcept;
    /// Reads two digits, of either case, a byte; "" when the length is odd or a byte is no digit.
    ///
    /// Undoes `AsciiToHexaString` only where every byte is one of 16 to 127.
    [[nodiscard]] static std::string HexaStringToAscii(char const* hex) noexcept;

    /// @}
    /// @name Numbers from text
    /// The text must not be null. Values in floating point follow the rounding mode of the thread.
    /// @{

    /// Takes a sign anywhere, one for each of mantissa and exponent: "12-" and "1-2" are numbers.
    ///
    /// Hexadecimal digits of either case behind "0x", even none, are a number. Otherwise decimal
    /// digits with at most one point and one sign, and behind an `e` or `E` once more the same:
    /// "1e5.3" is a number. Both sides of the marker need a digit. The text is looked at as a
    /// whole, and white space is no part of a number.
    [[nodiscard]] static bool IsNumber(char const* s) noexcept;
    /// True for a number whose `AsciiToDouble` is a whole one from -2147483648 to 2147483647,
    /// however it is written: "2.0", "1e3", "0x10" and "-0" are such. Where the thread rounds
    /// otherwise than to nearest, "1e3" and others with an exponent need not be.
    [[nodiscard]] static bool IsInt(char const* s) noexcept;
    /// True for a number whose `AsciiToDouble` is a whole one from 0 to 4294967295, "-0" included;
    /// in the rounding mode of the thread, as for `IsInt`.
    [[nodiscard]] static bool IsUnsignedInt(char const* s) noexcept;
    /// Reads the numbers of `IsNumber`, not always to the nearest double: each decimal of a
    /// fraction adds its digit times a power of 0.1, so that "0.3" is 3 * 0.1.
    ///
    /// The last sign of mantissa or exponent counts, wherever it stands: "1-2" is -12. Reading
    /// stops at the first byte that fits in nowhere: "12abc" is 12, "abc" and " 5" are 0; a later
    /// sign or point is no stop: "1.2.3" is 1.23. A mantissa or exponent too large gives infinity;
    /// infinity times zero, either way round, is not a number.
    [[nodiscard]] static double AsciiToDouble(char const* s) noexcept;
    /// `AsciiToDouble` rounded to single precision; infinity beyond its range.
    [[nodiscard]] static float AsciiToFloat(char const* s) noexcept;
    /// The C library's `atof`, which reads other texts than `AsciiToDouble` does: white space in
    /// front is skipped, what follows the number ignored, and "1-2" is 1. The decimal point and
    /// what is white space are those of the C library's locale.
    [[nodiscard]] static double GetDoubleValue(char const* s) noexcept;
    /// `GetDoubleValue` rounded to single precision; infinity beyond its range.
    [[nodiscard]] static float GetFloatValue(char const* s) noexcept;
    /// The C library's `atoi`, which does not read all that `IsInt` accepts: of "1e3" and "0x10" it
    /// reads 1 and 0. White space in front is skipped, what follows the digits ignored.
    ///
    /// The text is to hold a value from -2147483648 to 2147483647. What is white space, the C
    /// library's locale says.
    [[nodiscard]] static int GetIntValue(char const* s) noexcept;

    /// @}
    /// @name Text from numbers
    /// The forms that end in Char write the same text as those that end in String, with its
    /// terminator, into `out`, where the caller guarantees room for it.
    /// @{

    /// Decimal digits, behind a `-` if negative.
    [[nodiscard]] static std::string Int2String(int v) noexcept;
    /// As `Int2String`, at most 12 bytes.
    static void Int2Char(int v, char* out) noexcept;
    /// Writes values above 2147483647 as negative ones: 4294967295 gives "-1".
    [[nodiscard]] static std::string UnsignedInt2String(unsigned int v) noexcept;
    /// As `UnsignedInt2String`, at most 12 bytes.
    static void UnsignedInt2Char(unsigned int v, char* out) noexcept;
    /// Decimal digits, behind a `-` if negative.
    [[nodiscard]] static std::string Long2String(long v) noexcept;
    /// As `Long2String`, at most 21 bytes.
    static void Long2Char(long v, char* out) noexcept;
    /// The 32 bits of `v` as hexadecimal digits without leading zeros: -1 gives "ffffffff".
    [[nodiscard]] static std::string Int2Hexa(int v, bool upperCase) noexcept;
    /// `v` as `printf` writes it with `format`, which holds one conversion of a double without `*`
    /// or `L` and must not be null. The text may have any length; a format that the C library
    /// refuses gives "". The decimal point is that of the C library's locale, and the last digit
    /// may follow the rounding mode of the thread.
    [[nodiscard]] static std::string Float2String(double v, char const* format) noexcept;
    /// As `Float2String`; as many bytes as its text has, and a terminator.
    static void Float2Char(double v, char* out, char const* format) noexcept;
    /// As for a double of the same value.
    [[nodiscard]] static std::string Float2String(float v, char const* format) noexcept;
    /// As for a double of the same value.
    static void Float2Char(float v, char* out, char const* format) noexcept;

    /// @}
};

}  // namespace qel

#endif
