#include "TestHome.h"

// The main of every test program: GoogleTest's, with the tests' own home folder.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::AddGlobalTestEnvironment(new TestKit::TestHome);
    return RUN_ALL_TESTS();
}
