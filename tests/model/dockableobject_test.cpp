// DockableObject: the comparing flag, raised during a comparison and cleared on every way out.
#include "tqWorkRig/model/dockableobject.h"

#include "support/tqtest.h"

namespace {

// The smallest concrete dockable object; its equality raises the flag as the model's classes do.
class Probe : public tqWorkRig::DockableObject {
public:
    explicit Probe(const misc::tqstring& name) : DockableObject(name) {}
    void AcceptVisitor(tqWorkRig::DockableObjectVisitor&) const override {}
    bool operator==(const Probe& other) const {
        ComparingScope scope(*this);
        seenComparing = IsComparing();
        if (fail) throw misc::tqException(0, u"comparison failed");
        return DockableObject::operator==(other);
    }
    mutable bool seenComparing = false;
    bool fail = false;
};

}  // namespace

TEST(DockableObject, FlagIsSetDuringComparisonAndClearedOnEveryWayOut) {
    Probe a(u"p");
    Probe b(u"p");
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.seenComparing);
    EXPECT_FALSE(a.IsComparing());
    a.fail = true;
    EXPECT_THROW_MSG((void)(a == b), misc::tqException, "comparison failed");
    EXPECT_FALSE(a.IsComparing());
    b.SetAttribute(u"k", u"v");
    EXPECT_FALSE(static_cast<const tqWorkRig::DockableObject&>(a) == b);
}
