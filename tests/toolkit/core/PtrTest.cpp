#include "core/Ptr.h"
#include "core/Guard.h"
#include "core/iObject.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

struct Shape : iObject {
    explicit Shape(int* deaths) : deaths_(deaths) {}
    ~Shape() override { ++*deaths_; }
    int* deaths_;
};
struct Circle : Shape {
    using Shape::Shape;
};
struct Other : iObject {};

} // namespace

TEST(Ptr, DeletesTheObjectWhenTheLastOwnerGoes) {
    int deaths = 0;
    {
        Zn::Ptr<Shape> a(new Shape(&deaths));
        Zn::Ptr<Shape> b = a;
        EXPECT_EQ(a->refCount(), 2);
        a.reset();
        EXPECT_EQ(deaths, 0);
        EXPECT_EQ(b->refCount(), 1);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(Ptr, DynamicCastSharesTheCountOrGivesNull) {
    int deaths = 0;
    {
        Zn::Ptr<iObject> base(new Circle(&deaths));
        Zn::Ptr<Circle> circle = Zn::dynamicCast<Circle>(base);
        ASSERT_TRUE(circle);
        EXPECT_EQ(circle.count(), base.count());
        EXPECT_EQ(circle->refCount(), 2);
        EXPECT_FALSE(Zn::dynamicCast<Other>(base));
        base.reset();
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
    EXPECT_FALSE(Zn::dynamicCast<Circle>(Zn::Ptr<iObject>()));
}

TEST(Ptr, TypesWithoutACountGetOneBeside) {
    Zn::Ptr<std::vector<int>> v(new std::vector<int>{1, 2});
    Zn::Ptr<std::vector<int>> w = v;
    w->push_back(3);
    EXPECT_EQ(v->size(), 3u);
    EXPECT_EQ(v.count()->refCount(), 2);
}

TEST(Ptr, CountsAreAtomicAcrossThreads) {
    int deaths = 0;
    Zn::Ptr<Shape> shared(new Shape(&deaths));
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([shared] {
            for (int n = 0; n < 10000; ++n) {
                Zn::Ptr<Shape> copy = shared;
                Zn::Ptr<iObject> base = copy;
            }
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(shared->refCount(), 1);
    shared.reset();
    EXPECT_EQ(deaths, 1);
}

TEST(Guard, ReleaseEndsTheRegistrationOnce) {
    int released = 0;
    {
        Zn::Guard g([&] { ++released; });
        Zn::Guard copy = g;
        g.release();
        EXPECT_EQ(released, 0);
        EXPECT_TRUE(copy.active());
    }
    EXPECT_EQ(released, 1);
}
