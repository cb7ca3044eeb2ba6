// WorkRigFileReader: loads a work rig from its ZIP archive.
#pragma once

#include <memory>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "misc/tqstring.h"

namespace tqWorkRig {

class WorkRig;
class WorkRigFileReaderImpl;

/// Reads the whole file at construction; a failed load throws and leaves no object.
class TQ_EXPORT WorkRigFileReader {
public:
    explicit WorkRigFileReader(const misc::tqstring& fileName);
    ~WorkRigFileReader();
    WorkRigFileReader(const WorkRigFileReader&) = delete;
    WorkRigFileReader& operator=(const WorkRigFileReader&) = delete;

    /// The rig built from the file.
    const misc::tqAutoPointer<WorkRig>& GetWorkRig() const;

private:
    std::unique_ptr<WorkRigFileReaderImpl> m_impl;
};

}  // namespace tqWorkRig
