// An outside host: touches each public namespace through the umbrella header alone.
#include <tqWorkRig/tqWorkRig.h>

#include <cstdio>
#include <string>

namespace {

int Check(bool condition, const char* what) {
    if (!condition) std::printf("outside host: %s failed\n", what);
    return condition ? 0 : 1;
}

}  // namespace

int main() {
    int failures = 0;

    tqWorkRig::WorkRig rig(measures::tqUnitsFactory::Inch);
    rig.SetDisplayName(u"outside host");
    rig.SetNCFile(L"/jobs/part.nc");
    failures += Check(rig.GetNCFile() == misc::tqstring(u"part.nc"), "WorkRig::SetNCFile");

    tqWorkRig::Box box(u"fixture");
    box.SetAlpha(0.5f);
    failures += Check(box.Alpha() == 127, "Geometry::SetAlpha");

    misc::tqAutoPointer<cadcam::tqTMesh<double>> mesh(new cadcam::tqTMesh<double>(measures::tqUnitsFactory::Metric));
    mesh->AddTriangle({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    misc::tqMemoryIOStream stream(1024);
    cadcam::tqTSTLTranslator<double>::WriteSTLStream(*mesh, stream);
    failures += Check(stream.GetSize() == 134, "binary STL size");
    stream.Seek(0);
    cadcam::tqTMesh<double> readBack(measures::tqUnitsFactory::Metric);
    cadcam::tqTSTLTranslator<double>().ReadSTLStream(stream, readBack);
    failures += Check(readBack == *mesh, "STL round trip");
    tqWorkRig::Mesh geometry(mesh, u"part");
    failures += Check(geometry.GetMesh()->GetTriangleCount() == 1, "Mesh geometry");

    // A catalogue tool, and visitor slots called directly (resolved at compile time in this host).
    const cadcam::tqEndMill endMill(measures::tqUnitsFactory::Metric, cadcam::tqTool::ArborPointer(),
                                    cadcam::tqTool::HolderPointer(), 10, 20, 30);
    cadcam::tqToolCloner cloner;
    cloner.Visit(endMill);
    failures += Check(cloner.GetClone()->IsEqual(endMill), "tqToolCloner");
    cadcam::tqToolFinder finder;
    finder.Visit(endMill);
    failures += Check(std::string(finder.GetClassName()) == "tqEndMill", "tqToolFinder");
    cadcam::tqSolidDefinitionTypeFinder<double> solidKind(cadcam::tqRevolvedSolidDefinition<double>(
        measures::tqUnitsFactory::Metric));
    failures += Check(solidKind.GetType() == cadcam::SDT_REVOLVED, "tqSolidDefinitionTypeFinder");
    try {
        cadcam::tqBullMill(measures::tqUnitsFactory::Metric, cadcam::tqTool::ArborPointer(),
                           cadcam::tqTool::HolderPointer(), 6, 20, 30, 4);
        failures += Check(false, "tqBullMill refuses a corner radius above the radius");
    } catch (const cadcam::tqcadcamException& e) {
        failures += Check(e.GetCode() == 2117, "tqcadcamException code");
    }

    const cadcam::tq2dArc<double> arc({1, 0}, {0, 1}, {0, 0}, cadcam::tqArcDirection::Counterclockwise);
    failures += Check(arc.GetSweep() == 90.0, "tq2dArc sweep");
    failures += Check(cadcam::tqMatrix<double, 4, 4>::Identity() == cadcam::tqMatrix<double, 4, 4>(), "tqMatrix");

    try {
        misc::tqAutoPointer<int> none;
        failures += *none;
    } catch (const misc::tqException& e) {
        failures += Check(misc::to_utf8(e.GetMessage()) == "Accessing TQ_NULL pointer", "null dereference text");
    }
    try {
        tqWorkRig::WorkRig bad(static_cast<measures::tqUnitsFactory::Units>(0));
    } catch (const measures::tqmeasuresException& e) {
        failures += Check(e.GetCode() == 2141 && e.GetMessage() == misc::tqstring(u"Unknown Units"), "units failure");
    }

    std::printf("outside host: %s, %d failure(s)\n", misc::to_utf8(rig.GetDisplayName()).c_str(), failures);
    return failures == 0 ? 0 : 1;
}
