// Writes one archive per compression level into a folder, for the independent readers (unzip, zipinfo, Python's
// zipfile, xmllint) that the tests run over them.
#include <boost/filesystem/operations.hpp>
#include <cstdio>
#include <string>

#include "archivetestsupport.h"
#include "misc/tqexception.h"
#include "persistence/archive/archivedatawriter.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: archive_samples <folder>\n");
        return 2;
    }
    using tqWorkRig::WorkRigFileWriter;
    const std::string folder = argv[1];
    TiXmlDocument document;
    archivetest::MakeDocument(document);
    const auto shared = archivetest::MakeGridMesh(60, 40);
    const tqWorkRig::MeshList meshes{{u"Meshes/Mesh_1.stl", archivetest::MakeMesh(3000)},
                                     {u"Meshes/Mesh_2.stl", shared},
                                     {u"Meshes/Mesh_3.stl", shared}};
    const std::pair<const char*, WorkRigFileWriter::CompressionLevel> levels[] = {
        {"default", WorkRigFileWriter::Default},
        {"none", WorkRigFileWriter::None},
        {"fastest", WorkRigFileWriter::Fastest},
        {"best", WorkRigFileWriter::Best}};
    try {
        boost::filesystem::create_directories(folder);
        for (const auto& level : levels)
            tqWorkRig::ArchiveDataWriter::Write(document, folder + "/" + level.first + ".wrg", meshes, level.second);
    } catch (const misc::tqException& e) {
        std::fprintf(stderr, "%s\n", e.What().c_str());
        return 1;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    return 0;
}
