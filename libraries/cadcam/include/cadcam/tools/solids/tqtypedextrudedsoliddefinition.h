// tqTypedExtrudedSolidDefinition: the base of the turning holder solids, with height, shank and hand.
#pragma once

#include "cadcam/tools/solids/tqsoliddefinition.h"

namespace cadcam {

/// A turning solid: the extent along +Z (the plug height), the shank kind and the hand.
template <class T>
class TQ_EXPORT tqTypedExtrudedSolidDefinition : public tqSolidDefinition<T> {
public:
    /// Hand of a turning holder; other values may be held until validation refuses them.
    enum Hand : int { H_LEFT = 0, H_RIGHT = 1 };
    /// Shank of a turning holder; cylindrical is reserved.
    enum Shank : int { SK_RECTANGULAR = 0, SK_CYLINDRICAL = 1 };

    ~tqTypedExtrudedSolidDefinition() override;

    T GetHeight() const { return m_height; }
    void SetHeight(T height) { m_height = height; }
    Hand GetHand() const { return m_hand; }
    void SetHand(Hand hand) { m_hand = hand; }
    Shank GetShank() const { return m_shank; }
    void SetShank(Shank shank) { m_shank = shank; }

protected:
    tqTypedExtrudedSolidDefinition(measures::tqUnitsFactory::Units units, T height, Hand hand, Shank shank);
    tqTypedExtrudedSolidDefinition(const tqTypedExtrudedSolidDefinition&) = default;
    tqTypedExtrudedSolidDefinition& operator=(const tqTypedExtrudedSolidDefinition&) = default;

    /// Units, height, hand and shank.
    bool BaseEquals(const tqTypedExtrudedSolidDefinition& other) const;
    /// Scales the height.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    T m_height;
    Hand m_hand;
    Shank m_shank;
};

extern template class TQ_EXPORT tqTypedExtrudedSolidDefinition<double>;
extern template class TQ_EXPORT tqTypedExtrudedSolidDefinition<float>;

}  // namespace cadcam
