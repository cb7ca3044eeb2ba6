// SocketNode: comparison by child, socket and parent.
#include "tqWorkRig/connection/socketnode.h"

#include "model/modeltestutil.h"
#include "connection/treelinks.h"
#include "support/tqtest.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/connection/treehelper.h"

using namespace tqWorkRig;
using namespace modeltest;
using detail_::TreeLinks;

TEST(SocketNode, ComparesChildThenSocketThenParent) {
    const SocketPtr socket = NewSocket();
    const PlugPtr plug = NewPlug();
    auto rootA = TreeHelper::CreateNewPlugNode(NewPlug(u"root")), rootB = TreeHelper::CreateNewPlugNode(NewPlug(u"root"));
    auto bare = TreeLinks::AttachSocket(*rootA, socket);
    auto plugged = TreeLinks::AttachSocket(*rootB, socket);
    TreeLinks::AttachPlug(*plugged, plug);
    EXPECT_EQ(plugged->GetChild()->GetParent(), plugged.Get());

    EXPECT_FALSE(*bare == *plugged);  // without a child and with one
    TreeLinks::AttachPlug(*bare, plug);
    EXPECT_TRUE(*bare == *plugged);
    EXPECT_FALSE(*bare == *TreeLinks::AttachSocket(*rootB, NewSocket(u"other")));
    auto detached = TreeHelper::CreateNewSocketNode(socket);
    TreeLinks::AttachPlug(*detached, plug);
    EXPECT_FALSE(*detached == *plugged);  // a null parent against a set one
}
