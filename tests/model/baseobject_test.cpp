// BaseObject: attributes, the shared map of copies, and equality.
#include "tqWorkRig/model/baseobject.h"

#include "support/tqtest.h"

using tqWorkRig::BaseObject;
using misc::tqstring;

TEST(BaseObject, AbsentKeyReadsLikeAnEmptyValue) {
    BaseObject object(u"part");
    object.SetAttribute(u"empty", u"");
    EXPECT_EQ(object.GetAttributeValue(u"empty"), tqstring());
    EXPECT_EQ(object.GetAttributeValue(u"absent"), tqstring());
    object.SetAttribute(u"empty", u"now set");
    EXPECT_EQ(object.GetAttributeValue(u"empty"), tqstring(u"now set"));
    object.RemoveAttribute(u"absent");
    object.RemoveAttribute(u"empty");
    EXPECT_TRUE(object.GetAllAttributes()->empty());
}

TEST(BaseObject, CopiesShareAttributesBothWaysButNotTheName) {
    BaseObject source(u"source");
    BaseObject copy(source);
    copy.SetAttribute(u"k", u"from copy");
    EXPECT_EQ(source.GetAttributeValue(u"k"), tqstring(u"from copy"));
    source.SetAttribute(u"k2", u"from source");
    EXPECT_EQ(copy.GetAttributeValue(u"k2"), tqstring(u"from source"));
    copy.SetDisplayName(u"copy");
    EXPECT_EQ(source.GetDisplayName(), tqstring(u"source"));

    BaseObject assigned(u"assigned");
    assigned.SetAttribute(u"own", u"dropped");
    assigned = source;
    EXPECT_EQ(assigned.GetAttributeValue(u"own"), tqstring());
    assigned.ClearAllAttributes();
    EXPECT_TRUE(source.GetAllAttributes()->empty());
}

TEST(BaseObject, DistinctObjectsCompareByNameAndAttributesInKeyOrder) {
    BaseObject a(u"name");
    BaseObject b(u"name");
    a.SetAttribute(u"x", u"1");
    a.SetAttribute(u"y", u"2");
    b.SetAttribute(u"y", u"2");
    b.SetAttribute(u"x", u"1");
    EXPECT_TRUE(a == b);

    b.SetAttribute(u"x", u"1 ");
    EXPECT_FALSE(a == b);
    b.SetAttribute(u"x", u"1");
    b.SetAttribute(u"z", u"");
    EXPECT_FALSE(a == b);
    b.RemoveAttribute(u"z");
    b.SetDisplayName(u"Name");
    EXPECT_FALSE(a == b);
}

TEST(BaseObject, ReseatedNullMapFailsOnUseAndComparesByNullness) {
    BaseObject a(u"n");
    BaseObject b(u"n");
    a.GetAllAttributes() = misc::tqAutoPointer<BaseObject::AttributeMap>();
    EXPECT_THROW_CODE(a.SetAttribute(u"k", u"v"), misc::tqException, 0, "Accessing TQ_NULL pointer");
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(b == a);
    b.GetAllAttributes() = misc::tqAutoPointer<BaseObject::AttributeMap>();
    EXPECT_TRUE(a == b);
}
