// TreeHelper: node construction, and the two visitors that list an object's plugs or sockets.
#include "tqWorkRig/connection/treehelper.h"

#include "connection/treelinks.h"
#include "misc/tqexception.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/connection/socketnode.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/arbor.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/stock.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/tool.h"
#include "tqWorkRig/model/tooladapter.h"

namespace tqWorkRig {

misc::tqAutoPointer<PlugNode> TreeHelper::CreateNewPlugNode(const misc::tqAutoPointer<DockingFramePlug>& p) {
    if (p.IsNull())
        misc::ThrowFailure(u"tqWorkRig::TreeHelper::CreateNewPlugNode", u"WR: Paramter \"p\" must not be null.");
    return detail_::TreeLinks::MakePlugNode(p);
}

misc::tqAutoPointer<SocketNode> TreeHelper::CreateNewSocketNode(const misc::tqAutoPointer<DockingFrameSocket>& s) {
    if (s.IsNull())
        misc::ThrowFailure(u"tqWorkRig::TreeHelper::CreateNewSocketNode", u"WR: Paramter \"s\" must not be null.");
    return detail_::TreeLinks::MakeSocketNode(s);
}

std::vector<misc::tqAutoPointer<DockingFramePlug>> TreeHelper::TryGetPlugs(const DockableObject& object,
                                                                           misc::tqstring& error) {
    using Plugs = std::vector<misc::tqAutoPointer<DockingFramePlug>>;
    class GetPlugVisitor : public DockableObjectVisitor {
    public:
        void Visit(const Tool& tool) override { AddIfSet(tool.GetPlug()); }
        void Visit(const Holder& holder) override { AddIfSet(holder.GetPlug()); }
        void Visit(const Arbor& arbor) override { AddIfSet(arbor.GetPlug()); }
        void Visit(const ToolAssembly& assembly) override { AddIfSet(assembly.GetPlug()); }
        void Visit(const ToolAdapter& adapter) override { result = *adapter.GetPlugs(); }
        void Visit(const StockAdapter& adapter) override { result = *adapter.GetPlugs(); }
        void Visit(const Stock& stock) override { result = *stock.GetPlugs(); }
        void Visit(const DockableObject&) override {
            error = u"WR: Calling Visit function with base-type 'DockableObject'";
        }

        Plugs result;
        misc::tqstring error;

    private:
        void AddIfSet(const misc::tqAutoPointer<DockingFramePlug>& plug) {
            if (plug.IsNotNull()) result.push_back(plug);
        }
    };

    GetPlugVisitor visitor;
    object.AcceptVisitor(visitor);
    error = visitor.error;
    return std::move(visitor.result);
}

std::vector<misc::tqAutoPointer<DockingFrameSocket>> TreeHelper::TryGetSockets(const DockableObject& object,
                                                                               misc::tqstring& error) {
    using Sockets = std::vector<misc::tqAutoPointer<DockingFrameSocket>>;
    class GetSocketVisitor : public DockableObjectVisitor {
    public:
        void Visit(const Tool&) override { error = u"WR: Cannot get socket from Tool"; }
        void Visit(const Holder& holder) override { AddIfSet(holder.GetSocket()); }
        void Visit(const Arbor& arbor) override { AddIfSet(arbor.GetSocket()); }
        void Visit(const ToolAssembly&) override { error = u"WR: Cannot get sockets of ToolAssembly"; }
        void Visit(const ToolAdapter& adapter) override { result = *adapter.GetSockets(); }
        void Visit(const StockAdapter& adapter) override { result = *adapter.GetSockets(); }
        void Visit(const Stock&) override { error = u"WR: Cannot get sockets of Stock"; }
        void Visit(const DockableObject&) override {
            error = u"WR: Calling Visit function with base-type 'DockableObject'";
        }

        Sockets result;
        misc::tqstring error;

    private:
        void AddIfSet(const misc::tqAutoPointer<DockingFrameSocket>& socket) {
            if (socket.IsNotNull()) result.push_back(socket);
        }
    };

    GetSocketVisitor visitor;
    object.AcceptVisitor(visitor);
    error = visitor.error;
    return std::move(visitor.result);
}

}  // namespace tqWorkRig
