// Aliases and path texts on macOS, step by step.
#include "qel/Folder.h"

#include "FakeFrameworks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using qel::Folder;

constexpr OSErr fileNotFound = -43;

class PathServices : public testing::Test {
  protected:
    void SetUp() override { frameworks = FakeFrameworks(); }

    static void expectCalls(std::vector<std::string> const& calls) {
        EXPECT_EQ(frameworks.calls, calls);
    }
};

// --- aliases -----------------------------------------------------------------------------------

struct Alias : PathServices {
    void SetUp() override {
        PathServices::SetUp();
        frameworks.isAlias = true;
        frameworks.target = "/target";
    }

    void resolve(int size = 1024) {
        Folder::ResolveIfAlias("/an/alias", resolved_.data(), wasAlias_, size);
    }

    void expectTheTarget() const { EXPECT_STREQ(resolved_.c_str(), "/target"); }
    void expectThePath() const { EXPECT_STREQ(resolved_.c_str(), "/an/alias"); }

    std::string resolved_ = std::string(2048, '#');
    bool wasAlias_ = false;
};

TEST_F(Alias, IsReplacedByItsTarget) {
    resolve();
    expectTheTarget();
    EXPECT_TRUE(wasAlias_);
    EXPECT_EQ(frameworks.path, "/an/alias");
    EXPECT_EQ(frameworks.pathBufferSize, 1024U);
    expectCalls({"FSPathMakeRef", "FSResolveAliasFile", "FSRefMakePath"});
}

TEST_F(Alias, WhosePathHasNoReferenceIsCopied) {
    frameworks.referenceStatus = fileNotFound;
    wasAlias_ = true;
    resolve();
    expectThePath();
    EXPECT_FALSE(wasAlias_);
    expectCalls({"FSPathMakeRef"});
}

TEST_F(Alias, ThatDoesNotResolveIsCopiedAndIsAnAliasStill) {
    frameworks.aliasStatus = fileNotFound;
    resolve();
    expectThePath();
    EXPECT_TRUE(wasAlias_);
    expectCalls({"FSPathMakeRef", "FSResolveAliasFile"});
}

TEST_F(Alias, ThatCannotBeToldIsCopiedAndIsNone) {
    frameworks.aliasStatus = fileNotFound;
    frameworks.isAlias = false;
    wasAlias_ = true;
    resolve();
    expectThePath();
    EXPECT_FALSE(wasAlias_);
    expectCalls({"FSPathMakeRef", "FSResolveAliasFile"});
}

TEST_F(Alias, ThatIsNoneIsCopied) {
    frameworks.isAlias = false;
    wasAlias_ = true;
    resolve();
    expectThePath();
    EXPECT_FALSE(wasAlias_);
    expectCalls({"FSPathMakeRef", "FSResolveAliasFile"});
}

TEST_F(Alias, FlagMayBeAnyByteButZero) {
    frameworks.isAlias = 0x80;
    resolve();
    expectTheTarget();
    EXPECT_TRUE(wasAlias_);
}

TEST_F(Alias, WhoseTargetHasNoPathIsCopied) {
    frameworks.pathStatus = fileNotFound;
    resolve();
    expectThePath();
    EXPECT_TRUE(wasAlias_);
    expectCalls({"FSPathMakeRef", "FSResolveAliasFile", "FSRefMakePath"});
}

TEST_F(Alias, StatusIsAFailureWhateverItsSign) {
    frameworks.referenceStatus = 1;
    resolve();
    expectThePath();
    frameworks = FakeFrameworks();
    frameworks.isAlias = true;
    frameworks.aliasStatus = 1;
    resolve();
    expectThePath();
    frameworks.aliasStatus = noErr;
    frameworks.pathStatus = 1;
    resolve();
    expectThePath();
}

TEST_F(Alias, IsCopiedBeyondTheSizeGiven) {
    frameworks.isAlias = false;
    resolve(3);
    expectThePath();
    EXPECT_EQ(resolved_[10], '#');
}

TEST_F(Alias, TargetIsFilledUpWithZerosToTheSize) {
    resolve(12);
    EXPECT_EQ(resolved_.substr(0, 13), "/target" + std::string(5, '\0') + '#');
    EXPECT_EQ(frameworks.pathBufferSize, 12U);
}

TEST_F(Alias, TargetOfExactlyTheSizeIsNotTerminated) {
    resolve(7);
    EXPECT_EQ(resolved_.substr(0, 9), "/target##");
    EXPECT_EQ(frameworks.pathBufferSize, 7U);
}

TEST_F(Alias, TargetOfTheSizeLessOneIsTerminated) {
    resolve(8);
    EXPECT_EQ(resolved_.substr(0, 9), "/target" + std::string(1, '\0') + '#');
}

TEST_F(Alias, TargetMayFillAllOf1024Bytes) {
    frameworks.target = '/' + std::string(1023, 't');
    resolve(1024);
    EXPECT_EQ(resolved_.substr(0, 1025), frameworks.target + '#');
}

TEST_F(Alias, SizeIsTakenTo1024AtMost) {
    resolve(2048);
    expectTheTarget();
    EXPECT_EQ(frameworks.pathBufferSize, 1024U);
    EXPECT_EQ(resolved_[1024], '#');
}

TEST_F(Alias, NegativeSizeIsNoRoom) {
    resolve(-1);
    EXPECT_EQ(frameworks.pathBufferSize, 0U);
    EXPECT_EQ(resolved_[0], '#');
}

// --- path texts --------------------------------------------------------------------------------

TEST_F(PathServices, TextIsReadAsMacOsRomanAndReturnedAsUtf8) {
    frameworks.utf8 = "/caf\xC3\xA9";
    EXPECT_EQ(Folder::TranslateAbsolutePath("/caf\x8E"), "/caf\xC3\xA9");
    EXPECT_EQ(frameworks.text, "/caf\x8E");
    EXPECT_EQ(frameworks.textBufferSize, 4096);
    EXPECT_EQ(frameworks.stringsAlive, 0);
    expectCalls({"CFStringCreateWithCString", "CFStringGetCString", "CFRelease"});
}

TEST_F(PathServices, TextOfAVolumeIsConvertedAsAWhole) {
    frameworks.utf8 = "converted";
    EXPECT_EQ(Folder::TranslateAbsolutePath("D\x8Esk:/x"), "converted");
    EXPECT_EQ(frameworks.text, "/Volumes/D\x8Esk/x");
}

TEST_F(PathServices, TextOfWhichNoStringIsMadeIsEmpty) {
    frameworks.makesString = false;
    EXPECT_EQ(Folder::TranslateAbsolutePath("/x"), "");
    EXPECT_EQ(frameworks.stringsAlive, 0);
    expectCalls({"CFStringCreateWithCString"});
}

TEST_F(PathServices, TextThatDoesNotFitIsEmptyAndItsStringReleasedOnce) {
    frameworks.stringFits = false;
    EXPECT_EQ(Folder::TranslateAbsolutePath("/x"), "");
    EXPECT_EQ(frameworks.stringsAlive, 0);
    expectCalls({"CFStringCreateWithCString", "CFStringGetCString", "CFRelease"});
}

TEST_F(PathServices, TextMayFillTheBuffer) {
    frameworks.utf8 = std::string(4095, 'x');
    EXPECT_EQ(Folder::TranslateAbsolutePath("/x"), frameworks.utf8);
}

}  // namespace
