#pragma once

#include <QString>
#include <QtGlobal>

namespace game {

// Money is whole euros. The game shows it as the number, a blank and the euro sign, with no
// separators: "1250000 €".
inline QString euros(qint64 amount)
{
    return QString::number(amount) + QStringLiteral(" €");
}

// numerator / denominator rounded to the nearest whole number, a half going to the even one
// (banker's rounding), as every computed whole value of the game is rounded.
inline qint64 roundHalfEven(qint64 numerator, qint64 denominator)
{
    if (denominator == 0)
        return 0;
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    qint64 quotient = numerator / denominator;
    qint64 remainder = numerator % denominator;
    if (remainder < 0) { // make the remainder non-negative, floor division
        remainder += denominator;
        --quotient;
    }
    const qint64 twice = 2 * remainder;
    if (twice > denominator || (twice == denominator && quotient % 2 != 0))
        ++quotient;
    return quotient;
}

} // namespace game
