// A folder for each test, inside one for the whole program, which must be empty at its end.
#include "TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

#include <grp.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

namespace filesystem = std::filesystem;

void giveBackPermissions(filesystem::path const& folder) {
    filesystem::permissions(folder, filesystem::perms::owner_all, filesystem::perm_options::add);
    for (auto const& entry : filesystem::directory_iterator(folder)) {
        if (!entry.is_symlink() && entry.is_directory())
            giveBackPermissions(entry);
    }
}

}  // namespace

std::filesystem::path makeTemporaryFolder() {
    std::string name = filesystem::canonical(filesystem::temp_directory_path()) / "qel-fs-XXXXXX";
    EXPECT_NE(mkdtemp(name.data()), nullptr) << name << ": " << std::strerror(errno);
    EXPECT_EQ(chmod(name.c_str(), 0755), 0);
    return name;
}

void removeFolder(filesystem::path const& folder) {
    giveBackPermissions(folder);
    filesystem::remove_all(folder);
    EXPECT_FALSE(filesystem::exists(folder)) << folder << " is left behind";
}

namespace {

/// The program's own folder for temporary files: nothing but this program writes there, so that
/// at the end it must be as empty as it was. The program works in it between its tests.
class OwnTemporaryFiles : public testing::Environment {
    void SetUp() override {
        folder_ = makeTemporaryFolder();
        ASSERT_EQ(setenv("TMPDIR", folder_.c_str(), 1), 0);
        filesystem::current_path(folder_);
    }

    void TearDown() override {
        filesystem::current_path("/");
        for (auto const& entry : filesystem::directory_iterator(folder_))
            ADD_FAILURE() << entry.path() << " is left behind";
        removeFolder(folder_);
    }

    filesystem::path folder_;
};

/// Names that take `length` bytes with a separator in front of each.
std::vector<std::string> namesOfLength(std::size_t length) {
    constexpr std::size_t longestName = 200;
    std::vector<std::string> names;
    for (; length > longestName + 2; length -= longestName + 1)
        names.emplace_back(longestName, 'n');
    names.emplace_back(length - 1, 'e');
    return names;
}

auto* const ownTemporaryFiles = testing::AddGlobalTestEnvironment(new OwnTemporaryFiles);

}  // namespace

void TemporaryFolder::SetUp() {
    folder_ = makeTemporaryFolder();
    filesystem::current_path(folder_);
}

void TemporaryFolder::TearDown() {
    filesystem::current_path(folder_.parent_path());
    removeFolder(folder_);
}

std::string TemporaryFolder::here() {
    return filesystem::current_path();
}

std::string contentOf(std::string const& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

void makeFile(std::string const& path, std::string const& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    ASSERT_TRUE(file.flush().good()) << path;
}

void makeSocket(std::string const& path) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(address.sun_path, path.size());
    int const descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(descriptor, 0);
    auto const* const general = reinterpret_cast<sockaddr const*>(&address);
    EXPECT_EQ(bind(descriptor, general, sizeof address), 0) << std::strerror(errno);
    close(descriptor);
}

std::string pathInside(std::size_t length) {
    std::string path = filesystem::current_path();
    for (std::string const& name : namesOfLength(length - path.size()))
        path += '/' + name;
    EXPECT_EQ(path.size(), length);
    return path;
}

std::string makeFolderOfLength(std::size_t length) {
    std::string const path = pathInside(length);
    filesystem::create_directories(path);
    return path;
}

DeepFolder::DeepFolder(std::size_t length)
    : path_(pathInside(length)),
      names_(namesOfLength(length - filesystem::current_path().string().size())) {
    for (std::string const& name : names_) {
        EXPECT_EQ(mkdir(name.c_str(), 0755), 0) << std::strerror(errno);
        EXPECT_EQ(chdir(name.c_str()), 0) << std::strerror(errno);
    }
}

DeepFolder::~DeepFolder() {
    for (auto name = names_.rbegin(); name != names_.rend(); ++name) {
        EXPECT_EQ(chdir(".."), 0) << std::strerror(errno);
        EXPECT_EQ(rmdir(name->c_str()), 0) << std::strerror(errno);
    }
}

void giveUpSuperuser() {
    constexpr unsigned int nobody = 65534;
    if (geteuid() != 0)
        return;
    ASSERT_EQ(chown(".", nobody, nobody), 0);
    ASSERT_EQ(setgroups(0, nullptr), 0);
    ASSERT_EQ(setgid(nobody), 0);
    ASSERT_EQ(setuid(nobody), 0);
    ASSERT_NE(access("/", W_OK), 0);
}

void leaveChild() {
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}
