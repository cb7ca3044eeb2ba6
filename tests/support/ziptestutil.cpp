// Test helpers for archives, written on minizip directly so that they share no code with the library's archive.
#include "support/ziptestutil.h"

#include <minizip/unzip.h>
#include <minizip/zip.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <stdexcept>

namespace tqtest {

namespace {

std::string UniqueFolderName() {
    static std::atomic<unsigned> counter{0};
    std::random_device random;
    std::ostringstream name;
    name << "tqtest-" << ::getpid() << '-' << counter++ << '-' << random();
    return name.str();
}

}  // namespace

TempFolder::TempFolder() {
    const std::filesystem::path path = std::filesystem::temp_directory_path() / UniqueFolderName();
    std::filesystem::create_directories(path);
    m_path = path.string();
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void WriteZip(const std::string& path, const std::vector<ZipMember>& members) {
    zipFile zip = zipOpen64(path.c_str(), APPEND_STATUS_CREATE);
    if (zip == nullptr) throw std::runtime_error("cannot create " + path);
    for (const ZipMember& member : members) {
        zip_fileinfo info{};
        bool failed = zipOpenNewFileInZip64(zip, member.name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr,
                                            Z_DEFLATED, Z_DEFAULT_COMPRESSION, 0) != ZIP_OK;
        failed =
            failed || zipWriteInFileInZip(zip, member.data.data(), static_cast<unsigned>(member.data.size())) != ZIP_OK;
        failed = zipCloseFileInZip(zip) != ZIP_OK || failed;
        if (failed) {
            zipClose(zip, nullptr);
            throw std::runtime_error("cannot add " + member.name + " to " + path);
        }
    }
    if (zipClose(zip, nullptr) != ZIP_OK) throw std::runtime_error("cannot close " + path);
}

std::string ZipWorkRigXml(const TempFolder& folder, const std::string& name, const std::string& xml,
                          const std::vector<ZipMember>& extra) {
    std::vector<ZipMember> members{{"WorkRig.xml", xml}};
    members.insert(members.end(), extra.begin(), extra.end());
    const std::string path = folder.File(name);
    WriteZip(path, members);
    return path;
}

std::vector<ZipMember> ReadZip(const std::string& path) {
    unzFile zip = unzOpen64(path.c_str());
    if (zip == nullptr) throw std::runtime_error("cannot open " + path);
    std::vector<ZipMember> members;
    std::string failure;
    for (int result = unzGoToFirstFile(zip); result == UNZ_OK && failure.empty(); result = unzGoToNextFile(zip)) {
        unz_file_info64 info;
        char name[1024];
        if (unzGetCurrentFileInfo64(zip, &info, name, sizeof(name), nullptr, 0, nullptr, 0) != UNZ_OK ||
            unzOpenCurrentFile(zip) != UNZ_OK) {
            failure = "cannot open a member of " + path;
            break;
        }
        ZipMember member{name, std::string()};
        char buffer[4096];
        int count = 0;
        while ((count = unzReadCurrentFile(zip, buffer, sizeof(buffer))) > 0) member.data.append(buffer, count);
        if (unzCloseCurrentFile(zip) != UNZ_OK || count < 0) failure = "cannot read " + member.name + " of " + path;
        members.push_back(member);
    }
    unzClose(zip);
    if (!failure.empty()) throw std::runtime_error(failure);
    return members;
}

std::string ReadFileBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

}  // namespace tqtest
