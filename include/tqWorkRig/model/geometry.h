// Geometry: the abstract shape of a stock, part, adapter or fixture, with its colour.
#pragma once

#include "misc/export.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

class GeometryVisitor;

/// A shape with a colour of four bytes, red, green, blue and alpha; opaque black by default.
/// Each channel reads and writes as a byte (0 to 255) or as a float (0.0 to 1.0), over the same stored byte.
class TQ_EXPORT Geometry : public BaseObject {
public:
    ~Geometry() override;
    /// Calls the visitor's Visit for this object's concrete class.
    virtual void AcceptVisitor(GeometryVisitor& visitor) const = 0;

    /// The same object, or BaseObject equality and all four colour bytes equal.
    bool operator==(const Geometry& other) const;

    /// The red byte.
    unsigned char Red() const { return m_red; }
    /// Stores the red byte.
    void Red(unsigned char red) { m_red = red; }
    /// The green byte.
    unsigned char Green() const { return m_green; }
    /// Stores the green byte.
    void Green(unsigned char green) { m_green = green; }
    /// The blue byte.
    unsigned char Blue() const { return m_blue; }
    /// Stores the blue byte.
    void Blue(unsigned char blue) { m_blue = blue; }
    /// The alpha byte.
    unsigned char Alpha() const { return m_alpha; }
    /// Stores the alpha byte.
    void Alpha(unsigned char alpha) { m_alpha = alpha; }

    /// The red byte divided by 255, in single precision.
    float GetRed() const;
    /// Stores the low eight bits of red * 255 truncated toward zero: no rounding, no clamping (2.0f stores 254).
    void SetRed(float red);
    /// The green byte divided by 255.
    float GetGreen() const;
    /// Stores green as SetRed stores red.
    void SetGreen(float green);
    /// The blue byte divided by 255.
    float GetBlue() const;
    /// Stores blue as SetRed stores red.
    void SetBlue(float blue);
    /// The alpha byte divided by 255.
    float GetAlpha() const;
    /// Stores alpha as SetRed stores red.
    void SetAlpha(float alpha);

protected:
    /// Sets the name; the colour is opaque black.
    explicit Geometry(const tqstring& displayName);
    Geometry(const Geometry& other);
    Geometry& operator=(const Geometry& other);

private:
    unsigned char m_red;
    unsigned char m_green;
    unsigned char m_blue;
    unsigned char m_alpha;
};

}  // namespace tqWorkRig
