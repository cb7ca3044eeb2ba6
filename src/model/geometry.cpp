// Geometry: colour channels and base equality.
#include "tqWorkRig/model/geometry.h"

#include <cmath>
#include <cstdint>

namespace tqWorkRig {

namespace {

// The float is scaled and truncated in single precision and wraps to its low eight bits.
unsigned char ChannelFromFloat(float value) {
    const float scaled = value * 255.0f;
    // From 2^31 up a float is a multiple of 256, so its low eight bits are zero; NaN stores zero as well.
    if (!(std::fabs(scaled) < 2147483648.0f)) return 0;
    return static_cast<unsigned char>(static_cast<std::int32_t>(scaled) & 0xFF);
}

float ChannelToFloat(unsigned char value) { return static_cast<float>(value) / 255.0f; }

}  // namespace

Geometry::Geometry(const tqstring& displayName)
    : BaseObject(displayName), m_red(0), m_green(0), m_blue(0), m_alpha(255) {}

Geometry::Geometry(const Geometry& other) = default;

Geometry& Geometry::operator=(const Geometry& other) = default;

Geometry::~Geometry() = default;

bool Geometry::operator==(const Geometry& other) const {
    if (this == &other) return true;
    return BaseObject::operator==(other) && m_red == other.m_red && m_green == other.m_green &&
           m_blue == other.m_blue && m_alpha == other.m_alpha;
}

float Geometry::GetRed() const { return ChannelToFloat(m_red); }
void Geometry::SetRed(float red) { m_red = ChannelFromFloat(red); }
float Geometry::GetGreen() const { return ChannelToFloat(m_green); }
void Geometry::SetGreen(float green) { m_green = ChannelFromFloat(green); }
float Geometry::GetBlue() const { return ChannelToFloat(m_blue); }
void Geometry::SetBlue(float blue) { m_blue = ChannelFromFloat(blue); }
float Geometry::GetAlpha() const { return ChannelToFloat(m_alpha); }
void Geometry::SetAlpha(float alpha) { m_alpha = ChannelFromFloat(alpha); }

}  // namespace tqWorkRig
