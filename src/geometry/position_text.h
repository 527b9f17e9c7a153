#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "geometry/position.h"

namespace tarvex {

// Whole positions as texts in UTF-8, as they go over the clipboard.

// The position that the whole of `text` is; nothing if it is none. Degrees alone, degrees and minutes, or
// degrees, minutes and seconds, the latitude first unless letters tell otherwise. These are taken:
//
//     33.9425 -118.408            33.9425, -118.408           +33.9425/-118.408      33,9425; -118,408
//     N33.9425 W118.408           33.9425N 118.408W           n 33.9425, w 118.408   W118.408 N33.9425
//     N33 56.550 W118 24.480      33 56.550 N 118 24.480 W    33 56.55, -118 24.48   33 56,55 -118 24,48
//     N33°56.55' W118°24.48'      33°56′33″N/118°24′28.8″W    33°56’33’’ -118°24’28’’
//     N33 56 33 W118 24 28.8      33:56:33 -118:24:28.8       33-56-33.0N 118-24-28.8W
//     3356N11824W                 335633N1182428W             33N118W                335633.0N 1182428.8W
//     N33563300W118242880: a letter, then seconds with two decimals in 8 and 9 digits
//
// and these are not:
//
//     33.9425                     one number                  N33 N34, W118 N         two of one axis
//     91 0, 0 181, 90 0.1 0 0     beyond 90 or 180 degrees    33 60 118 0             60 minutes or seconds
//     -33N 118W                   a sign and a letter         33N -118                a letter, then a sign
//     33.5 56 118.4 24            a fraction before the last  33 118 24               parts of unlike number
//     3356 11824                  digits in a row, no letter  3356N118W               unlike digits in a row
//     33'56 118'24                minutes where degrees are   33-56 118-24            hyphens, no letter
//     33,9425,118,408             which commas are decimal?   33 56 33 S. 118 E       any other character
//
// A letter is N, S, E or W in either case, in front of its number or behind it; a sign stands in front, and
// none is north or east. Degrees have at most two digits of latitude and three of longitude in front of a
// fraction, minutes and seconds two. Between the parts stand their signs (° º ˚, then ' ’ ‘ ′ ´, then " ” “ ″
// or twice the sign of minutes), colons or blanks, with letters also hyphens; between the two axes at most
// one comma, semicolon or slash. A tab, a line end and a blank of any width is a blank. Commas between digits
// are decimal marks where only that makes a position of the text and it has no point. No position is longer
// than 200 bytes.
std::optional<Position> ReadPosition(std::string_view text);

// "N33 56.550 W118 24.480": minutes to three decimals (two metres), 60 of them carried into the degrees. Zero
// is north and east.
std::string PositionText(const Position& position);

}  // namespace tarvex
