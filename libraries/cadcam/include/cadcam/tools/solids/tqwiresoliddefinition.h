// tqWireSolidDefinition: the cylinder of an erosion wire, possibly endless.
#pragma once

#include "cadcam/tools/solids/tqsoliddefinition.h"

namespace cadcam {

/// A wire of a diameter and a length along +Z from 0; an infinite wire has no box and no mesh.
template <class T>
class TQ_EXPORT tqWireSolidDefinition : public tqSolidDefinition<T> {
public:
    tqWireSolidDefinition(measures::tqUnitsFactory::Units units, T wireDiameter, T wireLength, bool hasInfiniteLength);
    tqWireSolidDefinition(const tqWireSolidDefinition&);
    tqWireSolidDefinition& operator=(const tqWireSolidDefinition&);
    ~tqWireSolidDefinition() override;

    T GetWireDiameter() const { return m_wireDiameter; }
    T GetWireLength() const { return m_wireLength; }
    bool HasInfiniteLength() const { return m_hasInfiniteLength; }

    void AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const override;

    bool operator==(const tqWireSolidDefinition& other) const;
    bool operator!=(const tqWireSolidDefinition& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    T m_wireDiameter;
    T m_wireLength;
    bool m_hasInfiniteLength;
};

extern template class TQ_EXPORT tqWireSolidDefinition<double>;
extern template class TQ_EXPORT tqWireSolidDefinition<float>;

}  // namespace cadcam
