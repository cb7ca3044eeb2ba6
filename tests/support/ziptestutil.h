// Test helpers for archives: a temporary folder, hand-made ZIP archives and reading their members back.
#pragma once

#include <string>
#include <vector>

namespace tqtest {

/// A new, empty folder under the system's temporary folder, removed with everything in it at destruction.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// The folder's path.
    const std::string& Path() const { return m_path; }
    /// The path of a name inside the folder (which need not exist).
    std::string File(const std::string& name) const { return m_path + "/" + name; }

private:
    std::string m_path;
};

/// One member of an archive: its name and its bytes.
struct ZipMember {
    std::string name;
    std::string data;
};

/// Writes an archive at path with the members in order, deflated; throws std::runtime_error on failure.
void WriteZip(const std::string& path, const std::vector<ZipMember>& members);
/// Writes folder/name as an archive whose first member "WorkRig.xml" holds xml, then the extra members; returns
/// the archive's path.
std::string ZipWorkRigXml(const TempFolder& folder, const std::string& name, const std::string& xml,
                          const std::vector<ZipMember>& extra = {});
/// Every member of an archive, in the order of its central directory; throws std::runtime_error on failure.
std::vector<ZipMember> ReadZip(const std::string& path);
/// The whole file as bytes; throws std::runtime_error when it can't be read.
std::string ReadFileBytes(const std::string& path);

}  // namespace tqtest
