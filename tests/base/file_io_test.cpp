#include "base/file_io.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>

#include "base/clock.h"
#include "base/temporary_folder.h"

namespace tessarel {
namespace {

constexpr size_t Plenty = 1 << 20;

class FileIo : public testing::Test {
 protected:
  TemporaryFolder folder_;
  const std::string name_ = folder_.Path() + "table.tsg";
};

TEST_F(FileIo, WritesReplacesAndDeletes) {
  const std::string first("a\0\r\n\xFF", 5);
  for (const std::string& bytes : {first, std::string(100'000, 'x'), std::string()}) {
    WriteFileAtomically(name_, bytes);
    EXPECT_EQ(ReadWholeFile(name_, Plenty), bytes);
  }
  EXPECT_EQ(folder_.EntryCount(), 1);
  EXPECT_TRUE(FileExists(name_));
  DeleteFileIfPresent(name_);
  DeleteFileIfPresent(name_);
  DeleteFileIfPresent(name_ + "/below");
  EXPECT_FALSE(FileExists(name_));
  EXPECT_FALSE(FileExists(folder_.Path()));
}

TEST_F(FileIo, KeepsRightsAndLinks) {
  WriteFileAtomically(name_, "old");
  chmod(name_.c_str(), 0640);
  const std::string link = folder_.Path() + "link";
  std::filesystem::create_symlink(name_, link);
  WriteFileAtomically(link, "new");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(ReadWholeFile(name_, Plenty), "new");
  struct stat status {};
  ASSERT_EQ(stat(name_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0640u);
}

TEST_F(FileIo, AFullDiskCostsNeitherTheOldFileNorARest) {
  WriteFileAtomically(name_, "old");
  rlimit limit{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{1000, limit.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const int fault = FaultOf([&] { WriteFileAtomically(name_, std::string(5000, 'x')); });
  setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(fault, NumberOf(FaultNumber::DeviceFull));
  EXPECT_EQ(ReadWholeFile(name_, Plenty), "old");
  EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(FileIo, RefusesWhatIsNoOrdinaryFile) {
  const int access = NumberOf(FaultNumber::FileAccess);
  const int notFound = NumberOf(FaultNumber::FileNotFound);
  const std::string pipe = folder_.Path() + "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  WriteFileAtomically(name_, "12345");
  const std::string withNull = name_ + std::string("\0x", 2);

  for (const std::string& name : {folder_.Path(), pipe, folder_.Path() + "none/x", name_ + "/x",
                                  std::string(), withNull, std::string("/dev/null")})
    EXPECT_EQ(FaultOf([&] { WriteFileAtomically(name, "x"); }), access) << name;
  for (const std::string& name : {folder_.Path(), pipe, std::string("/dev/zero")})
    EXPECT_EQ(FaultOf([&] { ReadWholeFile(name, Plenty); }), access) << name;
  for (const std::string& name : {name_ + "x", withNull})
    EXPECT_EQ(FaultOf([&] { ReadWholeFile(name, Plenty); }), notFound) << name;
  EXPECT_EQ(FaultOf([&] { ReadWholeFile(name_, 4); }), access);
  EXPECT_EQ(FaultOf([&] { ReadWholeFile(name_, 5); }), 0);
  EXPECT_EQ(FaultOf([&] { DeleteFileIfPresent(folder_.Path()); }), access);
  EXPECT_EQ(ReadWholeFile(name_, Plenty), "12345");
}

TEST_F(FileIo, AWriteProtectedFileStands) {
  if (geteuid() == 0) GTEST_SKIP() << "root may write everything";
  WriteFileAtomically(name_, "old");
  chmod(name_.c_str(), 0400);
  EXPECT_EQ(FaultOf([&] { WriteFileAtomically(name_, "new"); }), NumberOf(FaultNumber::FileAccess));
  EXPECT_EQ(ReadWholeFile(name_, Plenty), "old");
}

TEST_F(FileIo, TellsWhenAFileWasWritten) {
  EXPECT_EQ(LastModifiedText(name_), "");
  EXPECT_EQ(LastModifiedText(""), "");
  EXPECT_EQ(LastModifiedText(folder_.Path()), "");
  WriteFileAtomically(name_, "x");
  const std::chrono::system_clock::time_point moment{std::chrono::seconds(1'000'000'000)};
  std::filesystem::last_write_time(name_, std::chrono::file_clock::from_sys(moment));
  EXPECT_EQ(LastModifiedText(name_), DateTimeText(LocalTimeOf(moment)));
}

}  // namespace
}  // namespace tessarel
