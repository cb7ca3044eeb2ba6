// WorkRig: construction, file names, copying and equality of the document.
#include "tqWorkRig/model/workrig.h"

#include <cstddef>
#include <string>

namespace tqWorkRig {

namespace {

// The file part of a path, split on the wide text: name, ".", extension, or the name alone.
tqstring FilePart(const std::u16string& path) {
    // A bare drive ("C:"), an empty text and a text ending in a backslash are all directory.
    if (path.empty() || (path.size() == 2 && path[1] == u':') || path.back() == u'\\') return tqstring();
    const std::size_t backslash = path.rfind(u'\\');
    const std::size_t slash = path.rfind(u'/');
    std::size_t start = 0;
    if (backslash != std::u16string::npos) start = backslash + 1;
    if (slash != std::u16string::npos && slash + 1 > start) start = slash + 1;
    const std::u16string file = path.substr(start);
    const std::size_t dot = file.rfind(u'.');
    if (dot == std::u16string::npos) return tqstring(file);
    const std::u16string name = file.substr(0, dot);
    const std::u16string extension = file.substr(dot + 1);
    return tqstring(extension.empty() ? name : name + u'.' + extension);
}

}  // namespace

WorkRig::WorkRig(const measures::tqUnitsFactory::Units& units) : BaseObject(tqstring()), measures::tqMeasurable(units) {}

WorkRig::WorkRig(const WorkRig& other) = default;

WorkRig& WorkRig::operator=(const WorkRig& other) = default;

WorkRig::~WorkRig() = default;

bool WorkRig::operator==(const WorkRig& other) const {
    if (this == &other) return true;
    if (!measures::tqMeasurable::operator==(other)) return false;
    return m_machineXMLFile == other.m_machineXMLFile && m_ncFile == other.m_ncFile;
}

void WorkRig::SetMachineXMLFile(const tqstring& machineXMLFile) { m_machineXMLFile = machineXMLFile; }

void WorkRig::SetNCFile(const tqstring& ncFile) { m_ncFile = FilePart(ncFile.wide()); }

void WorkRig::Scale(measures::tqUnitsFactory::Units, const double&) {}

}  // namespace tqWorkRig
