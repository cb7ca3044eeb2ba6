// Writes one archive per compression level into a folder, for the independent readers (unzip, zipinfo, Python's
// zipfile, xmllint) that the tests run over them.
#include <cstdio>
#include <filesystem>
#include <string>

#include "misc/tqexception.h"
#include "support/ziptestutil.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: archive_samples <folder>\n");
        return 2;
    }
    using tqWorkRig::WorkRigFileWriter;
    TiXmlDocument document;
    tqtest::MakeDocument(document);
    const auto shared = tqtest::MakeMesh(2400, 5.0);
    const tqWorkRig::MeshList meshes{
        {u"Meshes/Mesh_1.stl", tqtest::MakeMesh(3000)}, {u"Meshes/Mesh_2.stl", shared}, {u"Meshes/Mesh_3.stl", shared}};
    const std::pair<const char*, WorkRigFileWriter::CompressionLevel> levels[] = {
        {"default", WorkRigFileWriter::Default},
        {"none", WorkRigFileWriter::None},
        {"fastest", WorkRigFileWriter::Fastest},
        {"best", WorkRigFileWriter::Best}};
    try {
        std::filesystem::create_directories(argv[1]);
        for (const auto& level : levels)
            tqWorkRig::ArchiveDataWriter::Write(document, std::string(argv[1]) + "/" + level.first + ".wrg", meshes,
                                                level.second);
    } catch (const misc::tqException& e) {
        std::fprintf(stderr, "%s\n", e.What().c_str());
        return 1;
    }
    return 0;
}
