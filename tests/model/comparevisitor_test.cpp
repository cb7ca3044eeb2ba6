// CompareVisitor over geometries: double dispatch across the closed set, and the set tied to the visitor.
#include "model/comparevisitor.h"

#include <type_traits>

#include "model/geometrytypes.h"
#include "support/tqtest.h"

using misc::tqAutoPointer;
using tqWorkRig::Box;
using tqWorkRig::Geometry;
using tqWorkRig::GeometryCompareVisitor;
using tqWorkRig::Mesh;

namespace {

// A geometry outside the closed set, which reaches the visitor's base slot.
class Foreign : public Geometry {
public:
    Foreign() : Geometry(u"foreign") {}
    void AcceptVisitor(tqWorkRig::GeometryVisitor& visitor) const override {
        visitor.Visit(static_cast<const Geometry&>(*this));
    }
};

template <class T>
tqAutoPointer<Geometry> Make() {
    return tqAutoPointer<Geometry>(new T(u"same"));
}

}  // namespace

TEST(CompareVisitor, EachClassEqualsItsOwnKindOnly) {
    // Every pair has the same name and colour, so the base comparison alone would call them equal.
    tqWorkRig::GeometryTypes::ForEach([](auto* left) {
        using L = std::remove_pointer_t<decltype(left)>;
        tqWorkRig::GeometryTypes::ForEach([](auto* right) {
            using R = std::remove_pointer_t<decltype(right)>;
            EXPECT_TRUE(*Make<L>() == *Make<R>());
            EXPECT_EQ(GeometryCompareVisitor::Compare(*Make<L>(), *Make<R>()), (std::is_same<L, R>::value));
        });
    });
    Box box(u"shape"), other(u"shape");
    other.SetLowerCorner({-2, -1, -1});
    EXPECT_FALSE(GeometryCompareVisitor::Compare(box, other));  // same class: its own operator== decides
}

TEST(CompareVisitor, PointersFollowTheNullRules) {
    const tqAutoPointer<Geometry> none;
    EXPECT_TRUE(GeometryCompareVisitor::Compare(none, none));
    EXPECT_FALSE(GeometryCompareVisitor::Compare(Make<Mesh>(), none));
    EXPECT_FALSE(GeometryCompareVisitor::Compare(none, Make<Mesh>()));
    EXPECT_TRUE(GeometryCompareVisitor::Compare(Make<Mesh>(), Make<Mesh>()));
}

TEST(CompareVisitor, GeometryOutsideTheSetFails) {
    const Foreign foreign;
    const Box box(u"b");
    EXPECT_THROW_CODE(GeometryCompareVisitor::Compare(foreign, box), misc::tqException, 0,
                      "tqWorkRig::detail_::CompareVisitor::Visit: WR: Trying to compare an abstract type.");
    EXPECT_THROW_MSG(GeometryCompareVisitor::Compare(box, foreign), misc::tqException,
                     "tqWorkRig::detail_::CompareVisitor::Visit: WR: Trying to compare an abstract type.");
}
