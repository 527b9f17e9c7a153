#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvex {

// How text and numbers turn into each other. A blank is U+0020 and nothing else; positions count from 1; the
// decimal mark is the point whatever the locale.

// The number that `text` begins with; 0 if there is none. Blanks, tabs and line feeds are skipped wherever
// they stand. Takes a sign, digits with at most one point, an exponent (E or D in either case), and whole
// numbers behind &H and &O. Never fails; a number past the range of a double is infinite.
double LeadingNumber(std::string_view text);

// The number that the whole of `text` is, apart from blanks at both ends: a sign before or after, digits with
// an optional point, commas between digits as grouping, an exponent. NotANumber (13) for anything else, the
// empty text included; Overflow (6) past the range of a double.
double StrictNumber(std::string_view text);

// Whether StrictNumber would succeed.
bool IsNumberText(std::string_view text);

// Up to 15 significant digits, "-" for negative numbers, a zero in front of the point: "33.5", "0.5",
// "-117.25". Magnitudes from 1e-7 to below 1e15 are plain digits; others have digits, "E", a sign and at
// least two digits. This and the texts below: Overflow (6) for a number that isn't finite.
std::string NumberText(double number);

// The digits of NumberText without the zero in front of the point, behind one blank for a number at or above
// 0 or "-" for a negative one: " 33.5", " .5", "-.5", " 0".
std::string SignedNumberText(double number);
// The same of StrictNumber(text), with its failures.
std::string SignedNumberText(std::string_view text);

// Digits of the integer part of a number at or above 0; "0" for anything below 1.
std::string WholeDegreesText(double number);

// Six decimals after the point, whatever the # before it count.
inline constexpr std::string_view TwoDigitPattern = "##.######";
inline constexpr std::string_view ThreeDigitPattern = "###.######";
inline constexpr std::string_view NegatedThreeDigitPattern = "\\-###.######";
inline constexpr std::string_view FourDigitPattern = "####.######";

// `number` at its 15 significant digits, rounded to six places with halves away from zero, laid out by one of
// the patterns: no leading zeros, the point always, no trailing zeros: "33.5", "34.", ".5", ".". A negative
// number that doesn't round to zero has "-" in front; NegatedThreeDigitPattern puts "-" in front of every
// number.
std::string PatternFormat(double number, std::string_view pattern);
// The same of StrictNumber(text), with its failures.
std::string PatternFormat(std::string_view text, std::string_view pattern);

// `number` rounded to `places` decimals; a tie, judged on its 15 significant digits, goes to the even digit.
double RoundEven(double number, int places);

// Toward zero, and toward minus infinity.
double Fix(double number);
double Int(double number);

// The nearest whole number, ties to even. Overflow (6) when it doesn't fit.
std::int16_t WholeNumber16(double number);
std::int32_t WholeNumber32(double number);

// Without the blanks at both ends, at the start, at the end.
std::string_view Trim(std::string_view text);
std::string_view LeftTrim(std::string_view text);
std::string_view RightTrim(std::string_view text);

// A to Z and the letters of the Windows Latin-1 code page in upper case. The bytes of a UTF-8 sequence stay.
std::string Upper(std::string_view text);

// Parts of a text; a length past the end gives what is there. BadArgument (5) for a negative length or a
// start below 1.
std::string_view Left(std::string_view text, std::ptrdiff_t length);
std::string_view Right(std::string_view text, std::ptrdiff_t length);
std::string_view Mid(std::string_view text, std::ptrdiff_t start);
std::string_view Mid(std::string_view text, std::ptrdiff_t start, std::ptrdiff_t length);

// First position of `what` at or after `start`; 0 if absent.
std::ptrdiff_t Find(std::ptrdiff_t start, std::string_view text, std::string_view what);

}  // namespace tarvex
