// Angles in degrees: conversions and sine/cosine that are exact on quarter turns.
#pragma once

#include <cmath>

namespace cadcam {

/// π in the precision of T.
template <class T>
constexpr T tqPi = static_cast<T>(3.141592653589793238462643383279502884L);

/// Radians to degrees; dividing by π first keeps quarter and half turns exact.
template <class T>
T tqToDegrees(T radians) {
    return radians / tqPi<T> * static_cast<T>(180);
}

/// Degrees to radians.
template <class T>
T tqToRadians(T degrees) {
    return degrees / static_cast<T>(180) * tqPi<T>;
}

/// Sine and cosine of an angle in degrees; whole multiples of 90 give exact 0, 1 and -1.
template <class T>
void tqSinCosDegrees(T degrees, T& sine, T& cosine) {
    const T quarters = degrees / static_cast<T>(90);
    if (std::isfinite(quarters) && quarters == std::floor(quarters)) {
        const int turn = (static_cast<int>(std::fmod(quarters, static_cast<T>(4))) + 4) % 4;
        static constexpr int kSine[4] = {0, 1, 0, -1};
        static constexpr int kCosine[4] = {1, 0, -1, 0};
        sine = static_cast<T>(kSine[turn]);
        cosine = static_cast<T>(kCosine[turn]);
        return;
    }
    const T radians = tqToRadians(degrees);
    sine = std::sin(radians);
    cosine = std::cos(radians);
}

}  // namespace cadcam
