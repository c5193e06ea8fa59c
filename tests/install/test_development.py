#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Another program, built with what is installed: with CMake, and with pkg-config."""

import os
import shlex
import unittest

from staged import CMAKE, ROOT, StagedCase, run

EXAMPLE = ROOT / "tests/install/example"


class Development(StagedCase):
    def check(self, program):
        self.start_bus()
        self.start(self.bin / "timed", "com.astel.timed")
        said = run(program, env=self.environment)
        cookie = run(self.bin / "alarmctl", "next", env=self.environment).split()[0]
        self.assertEqual(said.strip(), f"The next alarms: {cookie}")

    def test_example_is_built_with_cmake(self):
        build = self.folder / "example"
        run(CMAKE, "-S", EXAMPLE, "-B", build, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={self.stage}")
        run(CMAKE, "--build", build)
        self.check(build / "example")

    def test_example_is_built_with_pkg_config(self):
        environment = dict(os.environ, PKG_CONFIG_PATH=str(self.lib / "pkgconfig"))
        flags = run("pkg-config", "--cflags", "--libs", "clock-timedclient", "clock-context", "clock-toolkit",
                    env=environment)
        # Every header besides, in the order of their names: they include nothing that is not installed.
        headers = self.folder / "headers.h"
        include = self.stage / "include/clock"
        headers.write_text("".join(f"#include <{path.relative_to(include)}>\n" for path in sorted(include.rglob("*.h"))))
        program = self.folder / "example-pc"
        run("c++", "-std=c++20", "-fPIC", "-include", headers, EXAMPLE / "main.cpp", "-o", program, *shlex.split(flags),
            *shlex.split(os.environ.get("LDFLAGS", "")))
        self.check(program)


if __name__ == "__main__":
    unittest.main(verbosity=2)
