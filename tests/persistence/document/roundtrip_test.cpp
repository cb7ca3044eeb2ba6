// Save and load together: every file version and level with Unicode texts and paths, and savers on several threads.
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "support/tqtest.h"
#include "support/ziptestutil.h"
#include "tqWorkRig/model/workrig.h"
#include "tqWorkRig/persistence/workrigfilereader.h"
#include "tqWorkRig/persistence/workrigfilewriter.h"

using measures::tqUnitsFactory;
using misc::tqAutoPointer;
using misc::tqstring;
using tqWorkRig::WorkRig;
using tqWorkRig::WorkRigFileReader;
using tqWorkRig::WorkRigFileWriter;

namespace {

tqAutoPointer<WorkRig> SampleRig(tqUnitsFactory::Units units, const tqstring& name) {
    tqAutoPointer<WorkRig> rig(new WorkRig(units));
    rig->SetDisplayName(name);
    rig->SetAttribute(u"Customer", u"Müller Feinmechanik");
    rig->SetAttribute(u"Größe \U0001F527", u"\"quoted\" & <tagged> 'single' ✓");
    rig->SetMachineXMLFile(u"/machines/Fräse 😀.xml");
    rig->SetNCFile(u"C:\\jobs\\4711\\op10.nc");
    return rig;
}

tqAutoPointer<WorkRig> SaveAndLoad(const tqAutoPointer<WorkRig>& rig, const std::string& path,
                                   WorkRigFileWriter::FileVersion version, WorkRigFileWriter::CompressionLevel level) {
    WorkRigFileWriter(rig, version).WriteToFile(tqstring(path), level);
    return WorkRigFileReader(tqstring(path)).GetWorkRig();
}

}  // namespace

TEST(WorkRigFileRoundTrip, EveryFileVersionAndLevel) {
    const tqtest::TempFolder folder;
    for (WorkRigFileWriter::FileVersion version : {WorkRigFileWriter::Version1, WorkRigFileWriter::Version2}) {
        for (WorkRigFileWriter::CompressionLevel level : {WorkRigFileWriter::Default, WorkRigFileWriter::None,
                                                          WorkRigFileWriter::Fastest, WorkRigFileWriter::Best}) {
            SCOPED_TRACE(testing::Message() << "version " << version << ", level " << level);
            const tqAutoPointer<WorkRig> rig = SampleRig(tqUnitsFactory::Inch, u"Müller \U0001F600 夹具 <&>\"' end");
            // In a new folder whose name reaches the file system as UTF-8.
            const std::string path =
                folder.Path("Müller 😀/rig_" + std::to_string(version) + "_" + std::to_string(level) + ".wr");
            const tqAutoPointer<WorkRig> loaded = SaveAndLoad(rig, path, version, level);
            EXPECT_TRUE(std::filesystem::is_regular_file(path));
            // Equality leaves out the display name and the attributes; a round trip keeps them too.
            EXPECT_TRUE(*loaded == *rig);
            EXPECT_EQ(loaded->GetDisplayName(), rig->GetDisplayName());
            EXPECT_EQ(*loaded->GetAllAttributes(), *rig->GetAllAttributes());
            EXPECT_EQ(loaded->GetMachineXMLFile(), rig->GetMachineXMLFile());
            EXPECT_EQ(loaded->GetNCFile(), tqstring(u"op10.nc"));
        }
    }
}

TEST(WorkRigFileRoundTrip, EightThreadsAtOnce) {
    const tqtest::TempFolder folder;
    std::vector<std::string> failures(8);
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([&folder, &failures, t] {
            try {
                for (int round = 0; round < 5; ++round) {
                    const tqAutoPointer<WorkRig> rig =
                        SampleRig(t % 2 == 0 ? tqUnitsFactory::Metric : tqUnitsFactory::Inch,
                                  misc::to_tqstring(t * 100LL + round));
                    const tqAutoPointer<WorkRig> loaded =
                        SaveAndLoad(rig, folder.Path("thread" + std::to_string(t) + ".wr"),
                                    t % 2 == 0 ? WorkRigFileWriter::Version1 : WorkRigFileWriter::Version2,
                                    static_cast<WorkRigFileWriter::CompressionLevel>(t % 4 - 1));
                    if (!(*loaded == *rig) || loaded->GetDisplayName() != rig->GetDisplayName())
                        failures[t] = "round " + std::to_string(round) + " differs";
                }
            } catch (const misc::tqException& e) {
                failures[t] = e.What();
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(failures, std::vector<std::string>(8));
}
