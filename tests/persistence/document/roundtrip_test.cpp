// Save and load together: every file version and level, Unicode texts, and savers on several threads.
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
    rig->SetAttribute(u"Operator", u"A. Smith");
    rig->SetMachineXMLFile(u"C:\\machines\\vmc-850.xml");
    rig->SetNCFile(u"C:\\jobs\\4711\\op10.nc");
    return rig;
}

tqAutoPointer<WorkRig> SaveAndLoad(const tqAutoPointer<WorkRig>& rig, const std::string& path,
                                   WorkRigFileWriter::FileVersion version, WorkRigFileWriter::CompressionLevel level) {
    WorkRigFileWriter(rig, version).WriteToFile(tqstring(path), level);
    return WorkRigFileReader(tqstring(path)).GetWorkRig();
}

// Equality leaves out the display name and the attributes; a round trip keeps them too.
void ExpectSame(const WorkRig& loaded, const WorkRig& saved) {
    EXPECT_TRUE(loaded == saved);
    EXPECT_EQ(loaded.GetDisplayName(), saved.GetDisplayName());
    EXPECT_EQ(*loaded.GetAllAttributes(), *saved.GetAllAttributes());
    EXPECT_EQ(loaded.GetNCFile(), tqstring(u"op10.nc"));
}

}  // namespace

TEST(WorkRigFileRoundTrip, EveryFileVersionAndLevel) {
    const tqtest::TempFolder folder;
    for (WorkRigFileWriter::FileVersion version : {WorkRigFileWriter::Version1, WorkRigFileWriter::Version2}) {
        for (WorkRigFileWriter::CompressionLevel level : {WorkRigFileWriter::Default, WorkRigFileWriter::None,
                                                          WorkRigFileWriter::Fastest, WorkRigFileWriter::Best}) {
            SCOPED_TRACE(testing::Message() << "version " << version << ", level " << level);
            const tqAutoPointer<WorkRig> rig = SampleRig(tqUnitsFactory::Inch, u"Bracket 4711, OP10");
            const std::string path =
                folder.File("rig_" + std::to_string(version) + "_" + std::to_string(level) + ".wr");
            ExpectSame(*SaveAndLoad(rig, path, version, level), *rig);
        }
    }
}

TEST(WorkRigFileRoundTrip, UnicodeAndMarkupSurvive) {
    const tqtest::TempFolder folder;
    const tqstring name = u"Müller \U0001F600 夹具 <&>\"' end";
    const tqAutoPointer<WorkRig> rig = SampleRig(tqUnitsFactory::Metric, name);
    rig->SetAttribute(u"Größe \U0001F527", u"\"quoted\" & <tagged> 'single' ✓");
    rig->SetMachineXMLFile(u"/machines/Fräse 😀.xml");
    const tqAutoPointer<WorkRig> loaded =
        SaveAndLoad(rig, folder.File("unicode.wr"), WorkRigFileWriter::Version2, WorkRigFileWriter::Default);
    ExpectSame(*loaded, *rig);
    EXPECT_EQ(loaded->GetDisplayName(), name);
    EXPECT_EQ(loaded->GetMachineXMLFile(), tqstring(u"/machines/Fräse 😀.xml"));
}

TEST(WorkRigFileRoundTrip, UnicodeFileNames) {
    const tqtest::TempFolder folder;
    const tqAutoPointer<WorkRig> rig = SampleRig(tqUnitsFactory::Metric, u"Path");
    ExpectSame(*SaveAndLoad(rig, folder.File("Müller/😀 rig.wr"), WorkRigFileWriter::Version2, WorkRigFileWriter::Best),
               *rig);
}

TEST(WorkRigFileRoundTrip, EightThreadsAtOnce) {
    const tqtest::TempFolder folder;
    constexpr int kThreads = 8;
    std::vector<std::string> failures(kThreads);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&folder, &failures, t] {
            try {
                for (int round = 0; round < 5; ++round) {
                    const tqAutoPointer<WorkRig> rig =
                        SampleRig(t % 2 == 0 ? tqUnitsFactory::Metric : tqUnitsFactory::Inch,
                                  misc::to_tqstring(t * 100LL + round));
                    const tqAutoPointer<WorkRig> loaded =
                        SaveAndLoad(rig, folder.File("thread" + std::to_string(t) + ".wr"),
                                    t % 2 == 0 ? WorkRigFileWriter::Version1 : WorkRigFileWriter::Version2,
                                    static_cast<WorkRigFileWriter::CompressionLevel>(t % 4 - 1));
                    if (!(*loaded == *rig) || loaded->GetDisplayName() != rig->GetDisplayName()) {
                        failures[t] = "round " + std::to_string(round) + " differs";
                    }
                }
            } catch (const misc::tqException& e) {
                failures[t] = e.What();
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (int t = 0; t < kThreads; ++t) EXPECT_EQ(failures[t], "") << "thread " << t;
}
