# Builds the sources that this recipe stands in; see packaging/README.md.
import os
import re

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load, rmdir

required_conan_version = ">=2.0"


class QelConan(ConanFile):
    name = "qel"
    description = "A small foundation library: text, large integers, RSA keys, dates, files"
    package_type = "static-library"
    settings = "os", "arch", "compiler", "build_type"

    @property
    def _project(self):
        return os.path.join(self.recipe_folder, os.pardir, os.pardir)

    def set_version(self):
        text = load(self, os.path.join(self._project, "src", "time", "VersionNumbers.h"))
        self.version = ".".join(re.findall(r"int version\w+ = (\d+);", text))

    def export_sources(self):
        for pattern in ("CMakeLists.txt", "cmake/*", "include/*", "src/*"):
            copy(self, pattern, self._project, self.export_sources_folder)

    def validate(self):
        if self.settings.os not in ("Linux", "Macos"):
            raise ConanInvalidConfiguration("qel is for macOS and Linux")
        if self.settings.get_safe("compiler.cppstd"):
            check_min_cppstd(self, 17)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["QEL_BUILD_TESTS"] = False
        toolchain.cache_variables["QEL_BUILD_EXAMPLES"] = False
        toolchain.cache_variables["QEL_WARNINGS"] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        # Conan writes its own descriptions, from package_info.
        rmdir(self, os.path.join(self.package_folder, "lib", "cmake"))
        rmdir(self, os.path.join(self.package_folder, "lib", "pkgconfig"))

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "qel")
        self.cpp_info.set_property("cmake_target_name", "qel::qel")
        self.cpp_info.set_property("pkg_config_name", "qel")
        self.cpp_info.libs = ["qel"]
        if self.settings.os == "Macos":
            self.cpp_info.frameworks = ["CoreServices", "CoreFoundation"]
