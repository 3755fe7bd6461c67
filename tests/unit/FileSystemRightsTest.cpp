// What the machine refuses to a user who lacks the right.
#include "tests/unit/FileSystemFixture.hpp"

#include <stdexcept>

#include <unistd.h>

namespace Tessoro {
namespace {

// The superuser has every right, so it is nobody while this lives.
class OrdinaryUser {
public:
  OrdinaryUser() {
    constexpr uid_t nobody = 65534;
    if (before == 0 && seteuid(nobody) != 0)
      throw std::runtime_error("the superuser can't become nobody");
  }
  ~OrdinaryUser() { EXPECT_EQ(seteuid(before), 0); }
  OrdinaryUser(const OrdinaryUser &) = delete;
  OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
  const uid_t before = geteuid();
};

class MissingRightTest : public StandardFileSystemTest {
protected:
  void SetUp() override {
    StandardFileSystemTest::SetUp();
    fs::permissions(folder, fs::perms::all);
    Put("locked", "x");
    fs::permissions(folder / "locked", fs::perms::none);
    fs::create_directory(folder / "closed");
    fs::permissions(folder / "closed", fs::perms::none);
  }

  void TearDown() override {
    fs::permissions(folder / "closed", fs::perms::owner_all);
    StandardFileSystemTest::TearDown();
  }
};

TEST_F(MissingRightTest, IsAnAccessErrorOfAFile) {
  const OrdinaryUser user;
  EXPECT_EQ(ReadFailure(In("locked")), 75);
  EXPECT_EQ(WriteFailure(In("locked")), 75);
}

TEST_F(MissingRightTest, IsAnAccessErrorOfWhatStandsInAClosedFolder) {
  const OrdinaryUser user;
  EXPECT_EQ(ReadFailure(In("closed/a")), 75);
  EXPECT_EQ(WriteFailure(In("closed/a")), 75);
}

TEST_F(MissingRightTest, IsAnAccessErrorOfAListOfAClosedFolder) {
  const OrdinaryUser user;
  EXPECT_EQ(FailureOf([&] { files.Subfolders(In("closed")); }), 75);
  EXPECT_EQ(FailureOf([&] { files.Files(In("closed"), "*"); }), 75);
  EXPECT_TRUE(files.FolderExists(In("closed")));
}

TEST_F(MissingRightTest, LeavesALockedFileAsItIs) {
  {
    const OrdinaryUser user;
    EXPECT_EQ(WriteFailure(In("locked")), 75);
  }
  fs::permissions(folder / "locked", fs::perms::owner_all);
  EXPECT_EQ(Content("locked"), "x");
}

} // namespace
} // namespace Tessoro
