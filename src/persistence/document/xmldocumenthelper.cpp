// XMLDocumentHelper: attribute access in the declared encoding, and the typed attributes of the document.
#include "persistence/document/xmldocumenthelper.h"

#include <strings.h>
#include <tinyxml.h>

#include <cstring>

#include "misc/tqexception.h"
#include "persistence/document/valuestringconverter.h"
#include "persistence/document/xmlnames.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

namespace {

// TinyXML itself takes these spellings, in any case, as UTF-8; every other encoding it passes through byte by byte.
bool IsUTF8(const std::string& encoding) {
    return encoding.empty() || strcasecmp(encoding.c_str(), xml::kUTF8) == 0 ||
           strcasecmp(encoding.c_str(), xml::kUTF8Short) == 0;
}

}  // namespace

XMLDocumentHelper::XMLDocumentHelper(const std::string& version, const std::string& encoding)
    : m_version(version), m_encoding(encoding), m_isUTF8(IsUTF8(encoding)) {}

TiXmlDeclaration* XMLDocumentHelper::CreateDeclaration() const {
    return new TiXmlDeclaration(m_version, m_encoding, std::string());
}

void XMLDocumentHelper::ReadDeclaration(const TiXmlDeclaration& declaration) {
    const std::string encoding = declaration.Encoding();
    m_encoding = (encoding.empty() || encoding == xml::kUTF8Short) ? std::string(xml::kUTF8) : encoding;
    m_isUTF8 = IsUTF8(m_encoding);
}

tqstring XMLDocumentHelper::GetAttribute(const TiXmlElement* element, const char* name) const {
    if (element == nullptr) {
        misc::ThrowFailure(u"tqWorkRig::XMLDocumentHelper::GetAttribute",
                           u"Trying to get attribute value for NULL XML element");
    }
    // An absent attribute reads as the empty string: text attributes are optional.
    return Decode(element->Attribute(name));
}

tqstring XMLDocumentHelper::GetName(const TiXmlElement* element) const {
    if (element == nullptr) {
        misc::ThrowFailure(u"tqWorkRig::XMLDocumentHelper::GetName", u"Trying to get name for NULL XML element");
    }
    return Decode(element->Value());
}

void XMLDocumentHelper::SetAttribute(TiXmlElement& element, const char* name, const tqstring& value) const {
    element.SetAttribute(name, misc::to_utf8(value).c_str());
}

int XMLDocumentHelper::GetIntAttribute(const TiXmlElement* element, const char* name) const {
    return ValueStringConverter::StringToInt(GetAttribute(element, name));
}

void XMLDocumentHelper::SetIntAttribute(TiXmlElement& element, const char* name, int value) const {
    SetAttribute(element, name, ValueStringConverter::IntToString(value));
}

std::uint64_t XMLDocumentHelper::GetUInt64Attribute(const TiXmlElement* element, const char* name) const {
    return ValueStringConverter::StringToUInt64(GetAttribute(element, name));
}

void XMLDocumentHelper::SetUInt64Attribute(TiXmlElement& element, const char* name, std::uint64_t value) const {
    SetAttribute(element, name, ValueStringConverter::UInt64ToString(value));
}

double XMLDocumentHelper::GetDoubleAttribute(const TiXmlElement* element, const char* name) const {
    return ValueStringConverter::StringToDouble(GetAttribute(element, name));
}

void XMLDocumentHelper::SetDoubleAttribute(TiXmlElement& element, const char* name, double value) const {
    SetAttribute(element, name, ValueStringConverter::DoubleToString(value));
}

void XMLDocumentHelper::SetExactDoubleAttribute(TiXmlElement& element, const char* name, double value) const {
    SetAttribute(element, name, ValueStringConverter::ExactDoubleToString(value));
}

cadcam::tqTPoint3d<double> XMLDocumentHelper::GetPointAttribute(const TiXmlElement* element, const char* name) const {
    return ValueStringConverter::StringToPoint(GetAttribute(element, name));
}

void XMLDocumentHelper::SetPointAttribute(TiXmlElement& element, const char* name,
                                          const cadcam::tqTPoint3d<double>& value) const {
    SetAttribute(element, name, ValueStringConverter::PointToString(value));
}

bool XMLDocumentHelper::GetBoolAttribute(const TiXmlElement* element, const char* name) const {
    return ValueStringConverter::StringToBool(GetAttribute(element, name));
}

void XMLDocumentHelper::SetBoolAttribute(TiXmlElement& element, const char* name, bool value) const {
    SetAttribute(element, name, ValueStringConverter::BoolToString(value));
}

void XMLDocumentHelper::AppendMatrix(TiXmlElement& parent, const cadcam::tqMatrix<double, 4, 4>& matrix) const {
    TiXmlElement* element = new TiXmlElement(xml::kMatrix4x4);
    parent.LinkEndChild(element);
    SetAttribute(*element, xml::kMatrix, ValueStringConverter::MatrixToString(matrix));
}

cadcam::tqMatrix<double, 4, 4> XMLDocumentHelper::ReadMatrix(const TiXmlElement* matrixElement) const {
    return ValueStringConverter::StringToMatrix(GetAttribute(matrixElement, xml::kMatrix));
}

void XMLDocumentHelper::WriteAttributes(TiXmlElement& parent, const BaseObject& object) const {
    const misc::tqAutoPointer<BaseObject::AttributeMap>& attributes = object.GetAllAttributes();
    if (attributes.IsNull()) return;
    // The map is ordered, so the children come in key order.
    for (const auto& pair : *attributes) {
        TiXmlElement* element = new TiXmlElement(xml::kAttribute);
        parent.LinkEndChild(element);
        SetAttribute(*element, xml::kKey, pair.first);
        SetAttribute(*element, xml::kValue, pair.second);
    }
}

void XMLDocumentHelper::ReadAttribute(const TiXmlElement* attribute, BaseObject& object) const {
    object.SetAttribute(GetAttribute(attribute, xml::kKey), GetAttribute(attribute, xml::kValue));
}

void XMLDocumentHelper::ReadAttributes(const TiXmlElement& parent, BaseObject& object) const {
    for (const TiXmlElement* child = parent.FirstChildElement(xml::kAttribute); child != nullptr;
         child = child->NextSiblingElement(xml::kAttribute)) {
        ReadAttribute(child, object);
    }
}

tqstring XMLDocumentHelper::Decode(const char* text) const {
    if (text == nullptr) return tqstring();
    const std::size_t length = std::strlen(text);
    if (m_isUTF8) return misc::from_utf8_lenient(text, length);
    // Any other declared encoding is taken as Latin-1: one byte, one code unit.
    std::u16string wide(length, u'\0');
    for (std::size_t i = 0; i < length; ++i) wide[i] = static_cast<unsigned char>(text[i]);
    return tqstring(std::move(wide));
}

}  // namespace tqWorkRig
