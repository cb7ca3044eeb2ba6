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

    // Tool geometry: default mount, exact heights, the generic form and a closed mesh.
    const cadcam::tqEndMill mounted(measures::tqUnitsFactory::Metric,
                                    cadcam::tqDefaultToolParts::MillingArbor(measures::tqUnitsFactory::Metric),
                                    cadcam::tqDefaultToolParts::MillingHolder(measures::tqUnitsFactory::Metric), 10, 20,
                                    30);
    failures += Check(*mounted.PartHeightOf(3) == 30, "PartHeightOf");
    failures += Check(cadcam::tqToolBoundingBox::HeightOf(mounted, 8) == 70, "tqToolBoundingBox");
    failures += Check(cadcam::tqToolToGenericToolConverter::Convert(mounted)->GetCuttingGroup().size() == 1,
                      "tqToolToGenericToolConverter");
    failures += Check(cadcam::tqSolidDefinitionMeshCreator::Create(*mounted.GetCuttingPart()->GetSolid(), 0.0, 0.01)
                              ->GetTriangleCount() > 0,
                      "tqSolidDefinitionMeshCreator");

    // A stock on a fixture, joined in the rig's table and validated.
    misc::tqAutoPointer<tqWorkRig::WorkRig> machine(new tqWorkRig::WorkRig(measures::tqUnitsFactory::Metric));
    misc::tqAutoPointer<tqWorkRig::StockAdapter> vise(new tqWorkRig::StockAdapter(u"vise"));
    misc::tqAutoPointer<tqWorkRig::DockingFramePlug> base(new tqWorkRig::DockingFramePlug(u"base"));
    misc::tqAutoPointer<tqWorkRig::DockingFrameSocket> jaws(new tqWorkRig::DockingFrameSocket(u"jaws"));
    vise->Add(base);
    vise->Add(jaws);
    misc::tqAutoPointer<tqWorkRig::Stock> blank(new tqWorkRig::Stock(u"blank"));
    misc::tqAutoPointer<tqWorkRig::DockingFramePlug> bottom(new tqWorkRig::DockingFramePlug(u"bottom"));
    blank->Add(bottom);
    misc::tqAutoPointer<tqWorkRig::MountStation> table(new tqWorkRig::StockMountStation(u"TBL", u"table"));
    const misc::tqAutoPointer<tqWorkRig::ConnectorTree>& tree =
        machine->GetConnectorTable()->CreateNewTree(table, base);
    tree->AddConnection(bottom, jaws);
    machine->AddStockAdapter(vise);
    machine->AddStock(blank);
    machine->AddDockingFrame(base);
    machine->AddDockingFrame(jaws);
    const auto adapters = tree->GetAllStockAdapters(blank);
    failures += Check(adapters->size() == 1 && (*adapters)[0].Get() == vise.Get(), "GetAllStockAdapters");
    try {
        tqWorkRig::Validator(machine).ValidateWorkRig();
        failures += Check(false, "Validator refuses an unregistered frame");
    } catch (const misc::tqException& e) {
        failures += Check(e.GetMessage() == misc::tqstring(u"Docking frame bottom not found in WorkRig!"),
                          "Validator text");
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
