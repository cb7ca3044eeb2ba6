// "ToolAssemblies", and the one operation on each side that handles the four tool sections together: arbors,
// holders and tools get their numbers first, so that assemblies can refer to them.
#include <tinyxml.h>

#include "persistence/document/workrigfilereaderimpl.h"
#include "persistence/document/workrigfilewriterimpl.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

void WorkRigFileWriterImpl::WriteToolAssembliesArborsHoldersAndTools(TiXmlElement& root) {
    // The numbers live only while this operation runs.
    NumberIDMap arborIDs;
    NumberIDMap holderIDs;
    NumberIDMap toolIDs;
    WriteArbors(root, arborIDs);
    WriteHolders(root, holderIDs);
    WriteTools(root, toolIDs);
    WriteToolAssemblies(root, arborIDs, holderIDs, toolIDs);
}

void WorkRigFileWriterImpl::WriteToolAssemblies(TiXmlElement& root, const NumberIDMap& /*arborIDs*/,
                                                const NumberIDMap& /*holderIDs*/, const NumberIDMap& /*toolIDs*/) {
    // The rig has no assembly list yet; the section is added empty.
    root.LinkEndChild(new TiXmlElement(xml::kToolAssemblies));
}

void WorkRigFileReaderImpl::ReadToolAssembliesArborsHoldersAndTools(const TiXmlElement& root) {
    for (const TiXmlElement* section = root.FirstChildElement(xml::kArbors); section != nullptr;
         section = section->NextSiblingElement(xml::kArbors)) {
        ReadArbors(*section);
    }
    for (const TiXmlElement* section = root.FirstChildElement(xml::kHolders); section != nullptr;
         section = section->NextSiblingElement(xml::kHolders)) {
        ReadHolders(*section);
    }
    for (const TiXmlElement* section = root.FirstChildElement(xml::kTools); section != nullptr;
         section = section->NextSiblingElement(xml::kTools)) {
        ReadTools(*section);
    }
    for (const TiXmlElement* section = root.FirstChildElement(xml::kToolAssemblies); section != nullptr;
         section = section->NextSiblingElement(xml::kToolAssemblies)) {
        ReadToolAssemblies(*section);
    }
}

void WorkRigFileReaderImpl::ReadToolAssemblies(const TiXmlElement& /*section*/) {
    // Nothing to read until the rig has an assembly list: each "ToolAssembly" will give one assembly, bound to
    // the arbors, holders and tools read before it.
}

}  // namespace tqWorkRig
