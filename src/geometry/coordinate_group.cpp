#include "geometry/coordinate_group.h"

#include "geometry/position.h"
#include "geometry/text_rules.h"

namespace tarvex {

std::string_view CoordinateGroup::DegreesComplaint() const {
    return tarvex::DegreesComplaint(axis, degrees.Text());
}

std::string_view CoordinateGroup::MinutesComplaint() const {
    return tarvex::MinutesComplaint(axis, degrees.Text(), minutes.Text());
}

void CoordinateGroup::Fill(std::string_view degreesText, std::string_view minutesText,
                           bool isNegative) const {
    degrees.SetText(degreesText);
    minutes.SetText(minutesText);
    (isNegative ? negative : positive).Select();
}

std::string CoordinateGroup::SignedDegrees() const {
    return positive.Value() ? degrees.Text() : "-" + degrees.Text();
}

double CoordinateGroup::Magnitude() const {
    return JoinDegrees({LeadingNumber(degrees.Text()), LeadingNumber(minutes.Text())});
}

}  // namespace tarvex
