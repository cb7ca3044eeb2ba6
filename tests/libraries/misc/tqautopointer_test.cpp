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
    Derived(int* deaths, int* derivedDeaths) : Counted(deaths), m_derivedDeaths(derivedDeaths) {}
    ~Derived() override { ++*m_derivedDeaths; }
    int* m_derivedDeaths;
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
        tqAutoPointer<Counted> b(a);
        tqAutoPointer<Counted> c;
        c = b;
        EXPECT_EQ(a.UseCount(), 3u);
        EXPECT_EQ(a.Get(), c.Get());
        c = c;  // self-assignment does nothing
        EXPECT_EQ(a.UseCount(), 3u);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(TqAutoPointer, PointersMadeSeparatelyFromOneObjectHaveTheirOwnBlocks) {
    int deaths = 0;
    auto* raw = new Counted(&deaths);
    tqAutoPointer<Counted> owner(raw);
    {
        tqAutoPointer<Counted> second(raw);
        EXPECT_EQ(owner.UseCount(), 1u);
        EXPECT_EQ(second.UseCount(), 1u);
        second.SetOwns(false);  // as a frame's parent link does: the second block must not delete
    }
    EXPECT_EQ(deaths, 0);
    owner = tqAutoPointer<Counted>();
    EXPECT_EQ(deaths, 1);
}

TEST(TqAutoPointer, ClearedOwnsFlagKeepsThePointeeForEveryCopy) {
    int deaths = 0;
    auto* raw = new Counted(&deaths);
    {
        tqAutoPointer<Counted> a(raw);
        tqAutoPointer<Counted> b(a);
        b.SetOwns(false);
        EXPECT_FALSE(a.Owns());
    }
    EXPECT_EQ(deaths, 0);
    delete raw;
}

TEST(TqAutoPointer, ConversionToBaseDeletesTheDerivedType) {
    int deaths = 0;
    {
        tqAutoPointer<NonVirtualBase> base;
        {
            tqAutoPointer<NonVirtualDerived> derived(new NonVirtualDerived(&deaths));
            base = derived;
            EXPECT_EQ(base.UseCount(), 2u);
        }
        EXPECT_EQ(base->value, 7);
    }
    EXPECT_EQ(deaths, 1);  // deleted as NonVirtualDerived although only a base pointer was left
}

TEST(TqAutoPointer, DynamicCastSharesTheBlockOrGivesNull) {
    int deaths = 0, derivedDeaths = 0;
    tqAutoPointer<Counted> base(new Derived(&deaths, &derivedDeaths));
    tqAutoPointer<Derived> derived = base.DynamicCast<Derived>();
    ASSERT_TRUE(derived.IsNotNull());
    EXPECT_EQ(base.UseCount(), 2u);
    tqAutoPointer<Counted> plain(new Counted(&deaths));
    EXPECT_TRUE(plain.DynamicCast<Derived>().IsNull());
}

TEST(TqAutoPointer, NullIsReadFromTheControlBlockAndDereferenceThrows) {
    tqAutoPointer<int> null;
    EXPECT_FALSE(null.IsNotNull());
    EXPECT_EQ(tqAutoPointer<int>(nullptr).UseCount(), 0u);
    EXPECT_THROW_MSG(*null, misc::tqException, "Accessing TQ_NULL pointer");
    EXPECT_THROW_MSG(static_cast<void>(tqAutoPointer<std::vector<int>>()->size()), misc::tqException, "Accessing TQ_NULL pointer");
    tqAutoPointer<int> copy(null);  // copying null touches no count
    EXPECT_TRUE(copy.IsNull());
}

TEST(TqAutoPointer, CopiesFromManyThreadsKeepTheCountExact) {
    int deaths = 0;
    tqAutoPointer<Counted> shared(new Counted(&deaths));
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&shared] {
            for (int i = 0; i < 20000; ++i) {
                tqAutoPointer<Counted> copy(shared);
                tqAutoPointer<Counted> other;
                other = copy;
            }
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(shared.UseCount(), 1u);
    EXPECT_EQ(deaths, 0);
}
