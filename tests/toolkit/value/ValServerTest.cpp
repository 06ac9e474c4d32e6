#include "value/ValClient.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <vector>

namespace {

// Records what it hears, and may write the server back from within a notice.
class Recorder : public ValClient<int> {
public:
    explicit Recorder(ValServer<int>* s, std::vector<int>* log = nullptr, int id = 0) : ValClient<int>(s), log_(log), id_(id) {}
    using ValClient<int>::operator=;
    void valChangedNtfy() override {
        seen.push_back(static_cast<int>(*this));
        if (log_) log_->push_back(id_);
        if (rewriteAbove && seen.back() > *rewriteAbove) *this = *rewriteAbove;
    }
    void valPreChangedNtfy() override { ++preNotices; }
    std::vector<int> seen;
    int preNotices = 0;
    std::optional<int> rewriteAbove;

private:
    std::vector<int>* log_;
    int id_;
};

// Accepts even numbers, rounds odd ones up, and refuses negatives.
class EvenManager : public ValManagerBase<int> {
public:
    bool requestValChange(ValServer<int>*, int& v) override {
        ++asked;
        if (v < 0) return false;
        if (v % 2) ++v;
        return true;
    }
    void releaseServer(ValServer<int>* s) override { released = s; }
    int asked = 0;
    ValServer<int>* released = nullptr;
};

} // namespace

TEST(ValServer, EveryAssignmentNotifiesEveryClientInOrderOfRegistration) {
    ValServer<int> server(5);
    std::vector<int> order;
    Recorder a(&server, &order, 1), b(&server, &order, 2);
    server = 7;
    server = 7;
    EXPECT_EQ(a.seen, (std::vector<int>{7, 7})) << "an unchanged value notifies again";
    EXPECT_EQ(order, (std::vector<int>{1, 2, 1, 2}));
    ValServer<int> other(9);
    server = other;
    EXPECT_EQ(b.seen.back(), 9);
    EXPECT_EQ(other.value(), 9);
    EXPECT_EQ(other.numRegistrations(), 0u) << "assigning a server copies its value, not its clients";
    server.preNotifyValChanged();
    EXPECT_EQ(a.preNotices, 1);
    EXPECT_EQ(a.seen.size(), 3u) << "a pre-change notice is not a change";
}

TEST(ValServer, ADisabledClientHearsNothingButReadsTheValue) {
    ValServer<int> server;
    Recorder quiet(&server), loud(&server);
    quiet.disable();
    server = 3;
    EXPECT_TRUE(quiet.seen.empty());
    EXPECT_EQ(static_cast<int>(quiet), 3);
    EXPECT_EQ(loud.seen, std::vector<int>{3});
    quiet.enable();
    server = 4;
    EXPECT_EQ(quiet.seen, std::vector<int>{4});
}

TEST(ValServer, TheManagerMayChangeOrRefuseAValue) {
    EvenManager m;
    ValServer<int> server(2);
    server.setManager(&m);
    Recorder c(&server);
    EXPECT_EQ(c = 3, 4) << "the client reads back what the manager made of it";
    EXPECT_EQ(c.seen, std::vector<int>{4});
    EXPECT_FALSE(server.updateAndNotify(-1));
    EXPECT_EQ(server.value(), 4);
    EXPECT_EQ(c.seen.size(), 1u) << "a refused value is not announced";
    EXPECT_EQ(c = -8, 4) << "after a refusal the client reads the old value";
    EXPECT_EQ(m.asked, 3);
}

TEST(ValServer, ClientsAndManagerOutliveTheirServer) {
    EvenManager m;
    auto* server = new ValServer<int>(6);
    server->setManager(&m);
    Recorder c(server);
    delete server;
    EXPECT_EQ(m.released, server);
    EXPECT_EQ(c.server(), nullptr);
    EXPECT_EQ(static_cast<int>(c), 0) << "a client with no server reads a default value";
    EXPECT_EQ(c = 11, 11) << "and gives back what it is given";
    EXPECT_TRUE(c.seen.empty()) << "the end of a server is not a change of value";
    c.registerWith(nullptr); // nothing left to release
}

TEST(ValServer, AClientMovesBetweenServersAndRegistersOnce) {
    ValServer<int> first(1), second(2);
    Recorder c(&first);
    c.registerWith(&first);
    EXPECT_EQ(first.numRegistrations(), 1u);
    c.registerWith(&second);
    EXPECT_EQ(first.numRegistrations(), 0u);
    first = 10;
    second = 20;
    EXPECT_EQ(c.seen, std::vector<int>{20});
    {
        Recorder brief(&second);
        EXPECT_EQ(second.numRegistrations(), 2u);
    }
    EXPECT_EQ(second.numRegistrations(), 1u);
}

TEST(ValServer, AClientMayWriteTheServerFromWithinANotice) {
    ValServer<int> server;
    Recorder limiter(&server), watcher(&server);
    limiter.rewriteAbove = 100;
    server = 250;
    EXPECT_EQ(server.value(), 100);
    EXPECT_EQ(limiter.seen, (std::vector<int>{250, 100}));
    // The nested notice reaches the watcher first; the outer one then still
    // arrives, and the watcher reads what the server holds by then.
    EXPECT_EQ(watcher.seen, (std::vector<int>{100, 100}));
}

TEST(ValServer, EqualityOfDoublesFollowsOrderingSoNaNEqualsNothing) {
    ValServer<double> a(std::nan("")), b(std::nan("")), c(1.5), d(1.5);
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a == a);
    EXPECT_TRUE(c == d);
    EXPECT_FALSE(c == a);
    EXPECT_TRUE(valEqualsVal(0.25f, 0.25f));
    EXPECT_FALSE(valEqualsVal(0.25, 0.2500001));
    ValServer<WString> s1(L"x"), s2(L"x");
    EXPECT_TRUE(s1 == s2);
}
