// tqAutoPointer: shared counts, separate control blocks, the owns flag, conversions and null dereference.
#include "misc/tqautopointer.h"

#include <thread>
#include <vector>

#include "misc/tqexception.h"
#include "support/tqtest.h"

using misc::tqAutoPointer;

namespace {

struct Counted {
    explicit Counted(int* deaths) : m_deaths(deaths) {}
    virtual ~Counted() { ++*m_deaths; }
    int* m_deaths;
};
struct Derived : Counted {
    using Counted::Counted;
};

struct NonVirtualBase {
    int value = 7;
};
struct NonVirtualDerived : NonVirtualBase {
    explicit NonVirtualDerived(int* deaths) : m_deaths(deaths) {}
    ~NonVirtualDerived() { ++*m_deaths; }
    int* m_deaths;
};

}  // namespace

TEST(TqAutoPointer, CopiesShareOneCountAndDeleteOnce) {
    int deaths = 0;
    {
        tqAutoPointer<Counted> a(new Counted(&deaths));
        EXPECT_EQ(a.UseCount(), 1u);
        tqAutoPointer<Counted> b(a), c;
        c = b;
        c = c;  // self-assignment does nothing
        EXPECT_EQ(a.UseCount(), 3u);
        EXPECT_EQ(a.Get(), c.Get());
    }
    EXPECT_EQ(deaths, 1);
}

TEST(TqAutoPointer, SeparateBlocksAndTheOwnsFlag) {
    int deaths = 0;
    auto* raw = new Counted(&deaths);
    tqAutoPointer<Counted> owner(raw);
    {
        tqAutoPointer<Counted> second(raw), copy(second);
        EXPECT_EQ(owner.UseCount(), 1u);
        EXPECT_EQ(second.UseCount(), 2u);
        copy.SetOwns(false);  // as a frame's parent link does: the second block must not delete
        EXPECT_FALSE(second.Owns());
    }
    EXPECT_EQ(deaths, 0);
    owner = tqAutoPointer<Counted>();
    EXPECT_EQ(deaths, 1);
}

TEST(TqAutoPointer, ConversionToBaseDeletesTheDerivedType) {
    int deaths = 0;
    {
        tqAutoPointer<NonVirtualBase> base;
        base = tqAutoPointer<NonVirtualDerived>(new NonVirtualDerived(&deaths));
        EXPECT_EQ(base.UseCount(), 1u);
        EXPECT_EQ(base->value, 7);
    }
    EXPECT_EQ(deaths, 1);  // deleted as NonVirtualDerived although only a base pointer was left
}

TEST(TqAutoPointer, DynamicCastSharesTheBlockOrGivesNull) {
    int deaths = 0;
    tqAutoPointer<Counted> base(new Derived(&deaths)), plain(new Counted(&deaths));
    const tqAutoPointer<Derived> derived = base.DynamicCast<Derived>();
    EXPECT_EQ(derived.Get(), base.Get());
    EXPECT_EQ(base.UseCount(), 2u);
    EXPECT_TRUE(plain.DynamicCast<Derived>().IsNull());
}

TEST(TqAutoPointer, NullIsReadFromTheControlBlockAndDereferenceThrows) {
    tqAutoPointer<int> null, copy(null);  // copying null touches no count
    EXPECT_FALSE(null.IsNotNull());
    EXPECT_TRUE(copy.IsNull());
    EXPECT_EQ(tqAutoPointer<int>(nullptr).UseCount(), 0u);
    EXPECT_THROW_MSG(*null, misc::tqException, "Accessing TQ_NULL pointer");
    EXPECT_THROW_MSG(static_cast<void>(tqAutoPointer<std::vector<int>>()->size()), misc::tqException,
                     "Accessing TQ_NULL pointer");
}

TEST(TqAutoPointer, CopiesFromManyThreadsKeepTheCountExact) {
    int deaths = 0;
    tqAutoPointer<Counted> shared(new Counted(&deaths));
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&shared] {
            for (int i = 0; i < 20000; ++i) {
                tqAutoPointer<Counted> copy(shared), other;
                other = copy;
            }
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(shared.UseCount(), 1u);
    EXPECT_EQ(deaths, 0);
}
