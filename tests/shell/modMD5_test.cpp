#include "shell/modMD5.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

const std::string Path = "C:\\WINDOWS\\tool.exe";

class modMD5Test : public testing::Test {
  protected:
    void TearDown() override { EXPECT_EQ(machine.files.OpenFileCount(), 0u); }

    std::string Digest(const std::string& content) {
        machine.AddFile(Path).Content(content);
        return GetFileMD5(machine.Parts(), Path, progress);
    }

    MemoryMachine machine;
    Progress progress{machine.clock};
};

TEST_F(modMD5Test, GivesTheDigestInLowerCaseHexadecimal) {
    EXPECT_EQ(Digest("abc"), "900150983cd24fb0d6963f7d28e17f72");
    EXPECT_EQ(Digest("message digest"), "f96b697d7cb7938d525a2f31aaf161d0");
    EXPECT_EQ(machine.Journal().CountOf("CryptCreateHash"), 2u);
}

TEST_F(modMD5Test, AnEmptyFileHasADigestToo) {
    EXPECT_EQ(Digest(""), "d41d8cd98f00b204e9800998ecf8427e");
}

TEST_F(modMD5Test, ALargeFileIsReadInBlocks) {
    EXPECT_EQ(Digest(std::string(1'000'000, 'a')), "7707d6ae4e027c70eea2a935c2296f21");
    for (const std::string& size : machine.Journal().ArgumentsOf("ReadFile")) {
        EXPECT_LE(std::stoul(size), 1024u * 1024u);
        EXPECT_GE(std::stoul(size), 256u * 1024u);
    }
    EXPECT_EQ(machine.Journal().CountOf("CryptHashData"), 4u);
}

TEST_F(modMD5Test, TellsHowFarItHasGotInAFileThatIsLarge) {
    struct : Progress::View {
        void ShowProgress(const std::string& text, std::optional<double> share) override {
            EXPECT_EQ(text, "Reading: " + Path);
            shares.push_back(share.value_or(-1));
        }
        void EndProgress() override {}
        std::vector<double> shares;
    } view;
    machine.clock.SetTickStep(200);
    progress.SetView(&view);
    Digest(std::string(16 * 256 * 1024, 'a'));
    ASSERT_EQ(view.shares.size(), 1u);  // the end of the file
    view.shares.clear();
    Digest(std::string(20 * 256 * 1024, 'a'));
    EXPECT_EQ(view.shares, (std::vector<double>{0, 0.25, 0.5, 0.75, 1}));
    EXPECT_FALSE(progress.Busy());
}

TEST_F(modMD5Test, AFileThatCantBeReadHasNone) {
    EXPECT_EQ(GetFileMD5(machine.Parts(), "C:\\missing.exe", progress), "");
    EXPECT_EQ(GetFileMD5(machine.Parts(), "", progress), "");
    machine.AddFolder("C:\\Folder");
    EXPECT_EQ(GetFileMD5(machine.Parts(), "C:\\Folder", progress), "");
    machine.AddFile(Path).Unreadable();
    EXPECT_EQ(Digest("abc"), "");
}

TEST_F(modMD5Test, NothingIsOpenedTwiceOrLeftOpen) {
    Digest("abc");
    EXPECT_EQ(
        machine.Journal().Names(),
        (std::vector<std::string>{"CreateFileA", "CryptCreateHash", "ReadFile", "CryptHashData",
                                  "ReadFile", "CryptGetHashParam", "CloseFile"}));
}

TEST_F(modMD5Test, WhateverFailsThereIsNoDigestAndNoOpenFile) {
    for (const std::string call :
         {"CreateFileA", "CryptCreateHash", "ReadFile", "CryptHashData", "CryptGetHashParam"}) {
        machine.FailNext(call);
        EXPECT_EQ(Digest("abc"), "") << call;
        EXPECT_EQ(machine.files.OpenFileCount(), 0u) << call;
    }
    EXPECT_EQ(Digest("abc"), "900150983cd24fb0d6963f7d28e17f72");
}

TEST_F(modMD5Test, AFileThatFailsPartWayHasNone) {
    struct FailingFile : MemoryFileSystem {
        using MemoryFileSystem::MemoryFileSystem;
        ErrorCode ReadFile(FileHandle file, std::span<std::uint8_t> buffer,
                           std::uint32_t& read) override {
            if (reads++ == 2) return error::AccessDenied;
            return MemoryFileSystem::ReadFile(file, buffer, read);
        }
        int reads = 0;
    } files(machine.Journal(), machine.disk);
    machine.AddFile(Path).Content(std::string(1'000'000, 'a'));
    const Machine real = machine.Parts();
    const Machine parts{real.registry, real.profileFiles, real.versionResources,
                        files,         real.clock,        real.processes,
                        real.token,    real.shell,        real.shortcuts,
                        real.system,   real.windows,      real.cryptography};
    EXPECT_EQ(GetFileMD5(parts, Path, progress), "");
    EXPECT_EQ(files.OpenFileCount(), 0u);
}

TEST_F(modMD5Test, ADigestOfAnotherLengthIsNone) {
    struct ShortHash : Hash {
        bool CryptHashData(std::span<const std::uint8_t>) override { return true; }
        std::optional<Bytes> CryptGetHashParam() override { return Bytes(15); }
    };
    struct ShortCryptography : Cryptography {
        std::unique_ptr<Hash> CryptCreateHash() override { return std::make_unique<ShortHash>(); }
    } cryptography;
    machine.AddFile(Path).Content("abc");
    const Machine real = machine.Parts();
    const Machine parts{real.registry, real.profileFiles, real.versionResources,
                        real.files,    real.clock,        real.processes,
                        real.token,    real.shell,        real.shortcuts,
                        real.system,   real.windows,      cryptography};
    EXPECT_EQ(GetFileMD5(parts, Path, progress), "");
}

}  // namespace
}  // namespace velkarix
