#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "geometry/position.h"

namespace tarvex {

// Reads a whole position, in UTF-8. Read are
//
//     33.9425 -118.408            decimal degrees with signs, latitude first; also parted by , ; or /
//     33.9425N 118.408W           with letters, before or behind, in either case; then in either order
//     N33 56.550 W118 24.480      degrees and minutes; parted by blanks, colons or signs: 33°56.550'N
//     33 56 33 N, 118 24 28.8 W   degrees, minutes and seconds: 33°56'33"N 118°24'28.8"W, 33:56:33
//     -118:24:28.8 33,9425 -118,408            a decimal comma, where it can't be what parts the two
//     3356N11824W  33N118W        degrees of two and three digits, minutes and seconds of two: ICAO
//     335633N1182428W             also with a fraction: 335633.0N1182428.8W
//     33-56-33.0N 118-24-28.8W    hyphens, with letters
//     N33563300W118242880         with hundredths of seconds: ARINC 424
//
// and not read are
//
//     33.9425                     only one of the two
//     N33.9425 -118.408           a letter for one of them only
//     -33.9425N 118.408W          a sign beside a letter
//     33.5 56.5 N 118 24 W        a fraction in front of another number
//     N33 60 W118 24              minutes or seconds of 60 and more
//     91 118, N90 0.1 E0 0        past the pole, or past 180 degrees
//     335N118W, 33563N1182428W    digits that tell no degrees
//     33 56 118, 33,5 11          without letters, not as many numbers for the one as for the other
//     33 118, 1/2                 without letters, two whole numbers: they may be anything
//     3356N118W                   rows of digits of unlike length
//     33-56 118-24                hyphens without letters
//     33'56 118'24                signs that belong to something else
//
std::optional<Position> ReadPosition(std::string_view text);

// Degrees and minutes with three decimals, which are six feet: "N33 56.550 W118 24.480". The position read
// back lies within half of that.
std::string PositionText(const Position& position);

}  // namespace tarvex
