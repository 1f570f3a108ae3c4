#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace game {

// The terms of a contract as the player types them into the offer and contract screens: sums
// of euros in money boxes, and the years in their own box. The screens and the rules read the
// boxes through these, so a box means the same to both.
//
//   digitsOf(u"1.000 €"_s);        // "1000"
//   sumOfBox(u""_s);               // 1: an empty box is one euro
//   yearsOfBox(u"9"_s);            // 1: a contract runs 1 to 6 years

// The digits of a text, in their order, whatever else stands in it: "1.000 €" gives "1000".
QString digitsOf(const QString &text);

// The sum a money box stands for: its digits as a number, and 1 € for a box without any.
// Nothing for more digits than any sum the game takes, which the caller refuses.
std::optional<qint64> sumOfBox(const QString &box);

// A contract runs 1 to 6 years. The bar of the years box gives 1 to 5; 6 can only be typed.
constexpr int kFewestContractYears = 1;
constexpr int kMostContractYears = 6;

// The years a box holds when it holds a number from 1 to 6; nothing for anything else.
std::optional<int> typedYears(const QString &box);
// The years a box counts for: its number from 1 to 6, and 1 for anything else.
int yearsOfBox(const QString &box);

} // namespace game
