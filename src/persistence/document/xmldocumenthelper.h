// XMLDocumentHelper: what the document's reader and writer share to touch XML: the declaration, text attributes
// in UTF-8, the typed attributes of the number formats, matrices and the "Attribute" children of objects.
#pragma once

#include <cstdint>
#include <string>

#include "cadcam/geometry/tqmatrix.h"
#include "cadcam/geometry/tqtpoint3d.h"
#include "misc/tqstring.h"

class TiXmlDeclaration;
class TiXmlElement;

namespace tqWorkRig {

using misc::tqstring;

class BaseObject;

/// Holds the declaration's version and encoding; the reader's copy learns the encoding from the file.
class XMLDocumentHelper {
public:
    /// The writer's and the reader's helper start with "1.0" and "UTF-8".
    XMLDocumentHelper(const std::string& version, const std::string& encoding);

    /// The declaration's version.
    const std::string& GetVersion() const { return m_version; }
    /// The encoding noted last: "UTF-8" unless a declaration said otherwise.
    const std::string& GetEncoding() const { return m_encoding; }
    /// A new declaration with the helper's version and encoding and no standalone; the caller owns it.
    TiXmlDeclaration* CreateDeclaration() const;
    /// Notes the declaration's encoding; "UTF8" and the empty value count as "UTF-8".
    void ReadDeclaration(const TiXmlDeclaration& declaration);

    /// The attribute's value; absent gives the empty string, a null element throws.
    tqstring GetAttribute(const TiXmlElement* element, const char* name) const;
    /// The element's value (its tag); a null element throws.
    tqstring GetName(const TiXmlElement* element) const;
    /// Sets the attribute to the value in UTF-8; a new attribute goes behind the ones already set.
    void SetAttribute(TiXmlElement& element, const char* name, const tqstring& value) const;

    /// "%d"; an absent or unparsable attribute throws the conversion failure.
    int GetIntAttribute(const TiXmlElement* element, const char* name) const;
    /// "%d".
    void SetIntAttribute(TiXmlElement& element, const char* name, int value) const;
    /// Plain decimal 64-bit ids; an absent or unparsable attribute throws the conversion failure.
    std::uint64_t GetUInt64Attribute(const TiXmlElement* element, const char* name) const;
    /// Plain decimal.
    void SetUInt64Attribute(TiXmlElement& element, const char* name, std::uint64_t value) const;
    /// Read as "%lf"; an absent or unparsable attribute throws the conversion failure.
    double GetDoubleAttribute(const TiXmlElement* element, const char* name) const;
    /// Written as "%f", six decimals: for the plain values of objects, geometries and offsets.
    void SetDoubleAttribute(TiXmlElement& element, const char* name, double value) const;
    /// Written with all its digits: for the values of typed tools and solids.
    void SetExactDoubleAttribute(TiXmlElement& element, const char* name, double value) const;
    /// Read as three "%lf" values cut at ","; an absent or unparsable attribute throws the conversion failure.
    cadcam::tqTPoint3d<double> GetPointAttribute(const TiXmlElement* element, const char* name) const;
    /// Three "%f" values joined by ",".
    void SetPointAttribute(TiXmlElement& element, const char* name, const cadcam::tqTPoint3d<double>& value) const;
    /// True only for "true"; absent reads false.
    bool GetBoolAttribute(const TiXmlElement* element, const char* name) const;
    /// "true" or "false".
    void SetBoolAttribute(TiXmlElement& element, const char* name, bool value) const;

    /// Appends a child "Matrix4x4" whose "matrix" holds the 16 values in row order.
    void AppendMatrix(TiXmlElement& parent, const cadcam::tqMatrix<double, 4, 4>& matrix) const;
    /// The matrix of a "Matrix4x4" element; an absent or short "matrix" throws the conversion failure.
    cadcam::tqMatrix<double, 4, 4> ReadMatrix(const TiXmlElement* matrixElement) const;

    /// Appends one "Attribute" child ("key", then "value") for each pair of the object's map, in key order.
    void WriteAttributes(TiXmlElement& parent, const BaseObject& object) const;
    /// Sets one "Attribute" element's pair on the object; a repeated key overwrites the earlier value.
    void ReadAttribute(const TiXmlElement* attribute, BaseObject& object) const;
    /// Reads every "Attribute" child of the element, in document order.
    void ReadAttributes(const TiXmlElement& parent, BaseObject& object) const;

private:
    tqstring Decode(const char* text) const;

    std::string m_version;
    std::string m_encoding;
    bool m_isUTF8;
};

}  // namespace tqWorkRig
