// Arbor: plug and socket setters, the binary stream refreshed on every read, equality of frames and definition.
#include "tqWorkRig/model/arbor.h"

#include "misc/tqmemoryiostream.h"
#include "modeltestutil.h"
#include "support/tqtest.h"

using namespace modeltest;
using tqWorkRig::Arbor;

TEST(Arbor, SetPlugAndSetSocketLinkTheFrameAndKeepTheOldOneOnNull) {
    Arbor arbor(u"arbor");
    const PlugPtr first = NewPlug(u"first"), second = NewPlug(u"second");
    arbor.SetPlug(first);
    arbor.SetPlug(PlugPtr());
    EXPECT_EQ(arbor.GetPlug().Get(), first.Get());
    arbor.SetPlug(first);  // again: the link stays as it is
    arbor.SetPlug(second);
    EXPECT_EQ(arbor.GetPlug().Get(), second.Get());
    EXPECT_EQ(first->GetParent().Get(), &arbor);  // not detached
    const SocketPtr socket = NewSocket();
    arbor.SetSocket(socket);
    arbor.SetSocket(SocketPtr());
    EXPECT_EQ(arbor.GetSocket().Get(), socket.Get());
    EXPECT_EQ(socket->GetParent().Get(), &arbor);
}

TEST(Arbor, EachReadOfTheStreamRewritesIt) {
    Arbor arbor(u"arbor");
    const char bytes[] = {1, 2, 3};
    arbor.GetBinaryRepresentation()->Write(bytes, sizeof bytes);
    EXPECT_EQ(arbor.GetBinaryRepresentation()->GetSize(), 0u);
    const Arbor::StreamPointer stored(new misc::tqMemoryIOStream());
    stored->Write(bytes, sizeof bytes);
    arbor.SetBinaryRepresentation(stored);
    EXPECT_EQ(static_cast<const Arbor&>(arbor).GetBinaryRepresentation().Get(), stored.Get());
    EXPECT_EQ(stored->GetSize(), 0u);
}

TEST(Arbor, ComparesPlugSocketAndDefinitionButNotTheStream) {
    Arbor a(u"arbor"), b(u"arbor");
    a.SetPlug(NewPlug());
    EXPECT_FALSE(a == b);
    b.SetPlug(NewPlug());
    b.SetSocket(NewSocket());
    EXPECT_FALSE(a == b);
    a.SetSocket(NewSocket());
    b.SetArborDefinition(Arbor::Definition(measures::tqUnitsFactory::Inch, {}));
    EXPECT_FALSE(a == b);
    a.SetArborDefinition(b.GetArborDefinition());
    a.SetBinaryRepresentation(Arbor::StreamPointer());
    EXPECT_TRUE(a == b);
}
