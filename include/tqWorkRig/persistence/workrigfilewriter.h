// WorkRigFileWriter: saves a work rig as a ZIP archive of "WorkRig.xml" and its STL meshes.
#pragma once

#include <memory>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "misc/tqstring.h"

namespace tqWorkRig {

class WorkRig;
class WorkRigFileWriterImpl;

/// Builds the whole document from a rig at construction; later changes to the rig are not saved.
class TQ_EXPORT WorkRigFileWriter {
public:
    /// The shape of the document: Version1 writes geometries flat, Version2 nests them and writes the assembly trees.
    enum FileVersion { Version1 = 1, Version2 = 2 };
    /// The deflate level of the archive's members.
    enum CompressionLevel { Default = -1, None = 0, Fastest = 1, Best = 2 };

    /// Builds the XML document and the mesh list from the rig.
    WorkRigFileWriter(const misc::tqAutoPointer<WorkRig>& workRig, FileVersion fileVersion);
    ~WorkRigFileWriter();
    WorkRigFileWriter(const WorkRigFileWriter&) = delete;
    WorkRigFileWriter& operator=(const WorkRigFileWriter&) = delete;

    /// Writes the archive at the default level, creating the parent folders.
    void WriteToFile(const misc::tqstring& fileName);
    /// Writes the archive at the given level, creating the parent folders.
    void WriteToFile(const misc::tqstring& fileName, CompressionLevel level);

private:
    std::unique_ptr<WorkRigFileWriterImpl> m_impl;
};

}  // namespace tqWorkRig
