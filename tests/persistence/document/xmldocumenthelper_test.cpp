// XMLDocumentHelper: text attributes in UTF-8, the declaration's encoding, typed attributes, matrices and the
// "Attribute" children of objects.
#include "persistence/document/xmldocumenthelper.h"

#include <tinyxml.h>

#include <algorithm>
#include <memory>
#include <string>

#include "support/tqtest.h"
#include "tqWorkRig/model/baseobject.h"

using misc::tqstring;
using tqWorkRig::BaseObject;
using tqWorkRig::XMLDocumentHelper;

namespace {

constexpr char kConversionFailed[] = "Conversion from string to value failed";
constexpr char kNullAttribute[] =
    "tqWorkRig::XMLDocumentHelper::GetAttribute: Trying to get attribute value for NULL XML element";

XMLDocumentHelper NewHelper() { return XMLDocumentHelper("1.0", "UTF-8"); }

// The element as TinyXML prints it on one line.
std::string Text(const TiXmlElement& element) {
    TiXmlPrinter printer;
    printer.SetStreamPrinting();
    element.Accept(&printer);
    return printer.CStr();
}

}  // namespace

TEST(XMLDocumentHelper, DeclarationIsVersionOneUtf8WithoutStandalone) {
    const XMLDocumentHelper helper = NewHelper();
    std::unique_ptr<TiXmlDeclaration> declaration(helper.CreateDeclaration());
    EXPECT_STREQ(declaration->Version(), "1.0");
    EXPECT_STREQ(declaration->Encoding(), "UTF-8");
    EXPECT_STREQ(declaration->Standalone(), "");
}

TEST(XMLDocumentHelper, ReadingADeclarationKeepsItsEncoding) {
    XMLDocumentHelper helper = NewHelper();
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"UTF8", "UTF-8"}, {"", "UTF-8"}, {"UTF-8", "UTF-8"}, {"ISO-8859-1", "ISO-8859-1"}, {"utf-8", "utf-8"}};
    for (const auto& c : cases) {
        helper.ReadDeclaration(TiXmlDeclaration("1.0", c.first, ""));
        EXPECT_EQ(helper.GetEncoding(), c.second) << c.first;
    }
}

TEST(XMLDocumentHelper, TextAttributesAreUtf8) {
    const XMLDocumentHelper helper = NewHelper();
    TiXmlElement element("E");
    helper.SetAttribute(element, "name", u"Müller \U0001F600");
    EXPECT_STREQ(element.Attribute("name"), "M\xC3\xBCller \xF0\x9F\x98\x80");
    EXPECT_EQ(helper.GetAttribute(&element, "name"), tqstring(u"Müller \U0001F600"));
    // An absent text attribute reads as the empty string.
    EXPECT_EQ(helper.GetAttribute(&element, "other"), tqstring());
    EXPECT_EQ(helper.GetName(&element), tqstring(u"E"));
}

TEST(XMLDocumentHelper, NullElementsFail) {
    const XMLDocumentHelper helper = NewHelper();
    EXPECT_THROW_CODE(helper.GetAttribute(nullptr, "x"), misc::tqException, 0, kNullAttribute);
    EXPECT_THROW_CODE(helper.GetName(nullptr), misc::tqException, 0,
                      "tqWorkRig::XMLDocumentHelper::GetName: Trying to get name for NULL XML element");
    EXPECT_THROW_MSG(helper.GetIntAttribute(nullptr, "x"), misc::tqException, kNullAttribute);
    EXPECT_THROW_MSG(helper.ReadMatrix(nullptr), misc::tqException, kNullAttribute);
    BaseObject object(u"o");
    EXPECT_THROW_MSG(helper.ReadAttribute(nullptr, object), misc::tqException, kNullAttribute);
}

TEST(XMLDocumentHelper, TypedAttributesUseTheNumberFormats) {
    const XMLDocumentHelper helper = NewHelper();
    TiXmlElement element("E");
    helper.SetIntAttribute(element, "i", -3);
    helper.SetUInt64Attribute(element, "u", 12345678901234ull);
    helper.SetDoubleAttribute(element, "d", 1.0 / 3.0);
    helper.SetExactDoubleAttribute(element, "x", 1.0 / 3.0);
    helper.SetPointAttribute(element, "p", {1.0, 2.0, 3.0});
    helper.SetBoolAttribute(element, "b", true);
    EXPECT_EQ(Text(element),
              "<E i=\"-3\" u=\"12345678901234\" d=\"0.333333\" x=\"0.33333333333333331482961625624739\" "
              "p=\"1.000000,2.000000,3.000000\" b=\"true\" />");
    EXPECT_EQ(helper.GetIntAttribute(&element, "i"), -3);
    EXPECT_EQ(helper.GetUInt64Attribute(&element, "u"), 12345678901234ull);
    EXPECT_EQ(helper.GetDoubleAttribute(&element, "d"), 0.333333);
    EXPECT_EQ(helper.GetDoubleAttribute(&element, "x"), 1.0 / 3.0);
    EXPECT_TRUE(helper.GetPointAttribute(&element, "p") == cadcam::tqTPoint3d<double>(1.0, 2.0, 3.0));
    EXPECT_TRUE(helper.GetBoolAttribute(&element, "b"));
}

TEST(XMLDocumentHelper, AbsentNumbersFailButAbsentTruthIsFalse) {
    const XMLDocumentHelper helper = NewHelper();
    const TiXmlElement element("E");
    EXPECT_THROW_CODE(helper.GetIntAttribute(&element, "i"), misc::tqmiscException, 2579, kConversionFailed);
    EXPECT_THROW_CODE(helper.GetUInt64Attribute(&element, "u"), misc::tqmiscException, 2579, kConversionFailed);
    EXPECT_THROW_CODE(helper.GetDoubleAttribute(&element, "d"), misc::tqmiscException, 2579, kConversionFailed);
    EXPECT_THROW_CODE(helper.GetPointAttribute(&element, "p"), misc::tqmiscException, 2579, kConversionFailed);
    EXPECT_THROW_CODE(helper.ReadMatrix(&element), misc::tqmiscException, 2579, kConversionFailed);
    EXPECT_FALSE(helper.GetBoolAttribute(&element, "b"));
}

TEST(XMLDocumentHelper, MatrixIsAChildElementThatRoundTrips) {
    const XMLDocumentHelper helper = NewHelper();
    cadcam::tqMatrix<double, 4, 4> matrix = cadcam::tqMatrix<double, 4, 4>::Rotation({1.0, 1.0, 0.0}, 33.3);
    matrix(0, 3) = 1.0 / 3.0;
    TiXmlElement parent("P");
    helper.AppendMatrix(parent, matrix);
    // One child with one attribute.
    const std::string text = Text(parent);
    EXPECT_EQ(text.substr(0, 22) + text.substr(text.size() - 8), "<P><Matrix4x4 matrix=\"\" /></P>");
    EXPECT_EQ(std::count(text.begin(), text.end(), '"'), 2);
    EXPECT_TRUE(helper.ReadMatrix(parent.FirstChildElement()) == matrix);
}

TEST(XMLDocumentHelper, AttributeChildrenInKeyOrderWithKeyThenValue) {
    const XMLDocumentHelper helper = NewHelper();
    BaseObject object(u"o");
    object.SetAttribute(u"zeta", u"last");
    object.SetAttribute(u"Alpha", u"first");
    object.SetAttribute(u"mid", u"");
    TiXmlElement parent("P");
    helper.WriteAttributes(parent, object);
    EXPECT_EQ(Text(parent),
              "<P><Attribute key=\"Alpha\" value=\"first\" /><Attribute key=\"mid\" value=\"\" />"
              "<Attribute key=\"zeta\" value=\"last\" /></P>");
    TiXmlElement none("P");
    helper.WriteAttributes(none, BaseObject(u"empty"));
    EXPECT_EQ(none.FirstChild(), nullptr);
}

TEST(XMLDocumentHelper, ReadingAttributesKeepsTheLastOfARepeatedKey) {
    TiXmlDocument document;
    document.Parse(
        "<P><Attribute key=\"k\" value=\"one\"/><Other key=\"o\" value=\"x\"/><Attribute value=\"no key\"/>"
        "<Attribute key=\"k\" value=\"two\"/><Attribute key=\"v\"/></P>");
    BaseObject object(u"o");
    NewHelper().ReadAttributes(*document.RootElement(), object);
    const BaseObject::AttributeMap expected = {{u"", u"no key"}, {u"k", u"two"}, {u"v", u""}};
    EXPECT_EQ(*object.GetAllAttributes(), expected);
}
