#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The installed programs, and what a desktop and a shell know of them."""

import configparser
import gzip
import pathlib
import re
import shlex
import struct
import subprocess
import unittest
import xml.etree.ElementTree

from staged import BUILD, CMAKE, PREFIX, ROOT, StagedCase, run

SIZES = (16, 22, 24, 32, 48, 64, 96, 128, 192, 256, 512)
SERVICES = ("com.astel.context.Alarm.Trigger", "com.astel.ringer", "com.astel.ringer.fallback", "com.astel.timed",
            "com.korvo.clock")
# Whether it may be installed anywhere else is for a reader of this list to say.
FOLDERS = ("bin", "include/clock", "lib", "libexec/clock", "share/applications", "share/bash-completion/completions",
           "share/clock-backup/participants", "share/dbus-1", "share/doc", "share/icons/hicolor", "share/man",
           "share/metainfo", "share/sounds/ring-tones")


class Installed(StagedCase):
    def options(self, *command):
        """The long options that a help text lists."""
        return set(re.findall(r"^  (--[a-z-]+)", run(self.bin / "alarmctl", *command, "--help"), re.M))

    def commands(self):
        text = run(self.bin / "alarmctl", "--help")
        return re.findall(r"^  ([a-z]+)  ", text.split("Commands:")[1].split("Examples:")[0], re.M)

    def test_everything_is_there(self):
        wanted = [self.bin / name for name in ("alarmctl", "clock", "clock-backup", "timed")]
        wanted += [self.libexec / name for name in ("clock-ring-fallback", "clock-rtc", "ringer")]
        wanted += [self.lib / "clock/ringer/libclockalarm.so"]
        wanted += [self.share / "dbus-1/services" / f"{name}.service" for name in SERVICES]
        wanted += [self.stage / "lib/systemd" / unit for unit in (
            "user/timed.service", "system/clock-rtc.service", "system/user@.service.d/wake-alarm.conf")]
        wanted += [self.stage / "lib/tmpfiles.d/clock-rtc.conf"]
        wanted += [self.share / "applications/com.korvo.clock.desktop",
                   self.share / "metainfo/com.korvo.clock.metainfo.xml",
                   self.share / "bash-completion/completions/alarmctl",
                   self.share / "clock-backup/participants/com.korvo.clock.conf"]
        wanted += [self.share / "sounds/ring-tones" / tone.name for tone in (ROOT / "data/sounds/ring-tones").iterdir()]
        self.assertEqual([str(path) for path in wanted if not path.is_file()], [])

    def test_nothing_lies_elsewhere(self):
        paths = [str(path.relative_to(self.stage)) for path in self.stage.rglob("*") if path.is_file()]
        self.assertEqual([path for path in paths if not path.startswith(FOLDERS)], [])

    def test_services_and_units_start_installed_programs(self):
        files = [*(self.share / "dbus-1/services").iterdir(), *(self.stage / "lib/systemd").rglob("*.service")]
        self.assertEqual(len(files), len(SERVICES) + 2)
        for file in files:
            for command in re.findall(r"^Exec(?:Start|Stop)?=(.*)", file.read_text(), re.M):
                program = shlex.split(command)[0]
                self.assertTrue(program.startswith(PREFIX + "/"), f"{file.name}: {program}")
                installed = self.stage / program[len(PREFIX) + 1:]
                self.assertTrue(installed.stat().st_mode & 0o111, f"{file.name}: {program}")

    def test_launcher(self):
        file = self.share / "applications/com.korvo.clock.desktop"
        self.assertEqual(run("desktop-file-validate", file), "")
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(file)
        self.assertEqual(entry["Desktop Entry"]["DBusActivatable"], "true")
        self.assertTrue((self.bin / entry["Desktop Entry"]["Exec"]).exists())
        self.assertTrue((self.share / "dbus-1/services" / f"{file.stem}.service").exists())

    def test_entry_for_software_centres(self):
        """With the address of the source tree as well, which gives it pictures."""
        name = "com.korvo.clock.metainfo.xml"
        run("appstreamcli", "validate", "--no-net", "--pedantic", self.share / "metainfo" / name)
        script = self.folder / "addresses.cmake"
        script.write_text(f"""
            set(CLOCK_HOMEPAGE https://clock.example/tree)
            set(PROJECT_VERSION 1.2.3)
            file(READ {ROOT}/data/desktop/addresses.xml.in addresses)
            string(CONFIGURE "${{addresses}}" CLOCK_ADDRESSES @ONLY)
            configure_file({ROOT}/data/desktop/{name}.in {self.folder}/{name}.in @ONLY)""")
        run(CMAKE, "-P", script)
        run(ROOT / "data/desktop/translate", self.folder / f"{name}.in", self.folder / name, *self.catalogues())
        run("appstreamcli", "validate", "--no-net", "--pedantic", self.folder / name)
        pictures = re.findall(r"<image>https://clock.example/tree/(.*)</image>", (self.folder / name).read_text())
        self.assertTrue(pictures)
        self.assertEqual([picture for picture in pictures if not (ROOT / picture).is_file()], [])

    @staticmethod
    def catalogues():
        return [*sorted((ROOT / "data/translations").glob("clock_*.ts")),
                *sorted((ROOT / "data/desktop/translations").glob("desktop_*.ts"))]

    def test_every_language_is_in_launcher_and_software_centre(self):
        launcher = (self.share / "applications/com.korvo.clock.desktop").read_text()
        entry = xml.etree.ElementTree.parse(self.share / "metainfo/com.korvo.clock.metainfo.xml").getroot()
        for catalogue in self.catalogues():
            root = xml.etree.ElementTree.parse(catalogue).getroot()
            language = root.get("language")
            tag = {"{http://www.w3.org/XML/1998/namespace}lang": language.replace("_", "-")} if language != "en" else {}
            key = f"[{language}]" if language != "en" else ""
            texts = {message.get("id"): message.findtext("translation") for message in root.iter("message")}
            if catalogue.name.startswith("clock_"):
                self.assertIn(f"\nName{key}={texts['qtn_cloc_title']}\n", launcher)
                self.assertEqual([name.text for name in entry.iter("name") if name.attrib == tag],
                                 [texts["qtn_cloc_title"]])
                continue
            self.assertIn(f"\nGenericName{key}={texts['qtn_desk_generic_name']}\n", launcher)
            self.assertIn(f"\nComment{key}={texts['qtn_desk_comment']}\n", launcher)
            self.assertIn(f"\nKeywords{key}={texts['qtn_desk_keywords']}\n", launcher)
            shown = [element.text for element in entry.iter() if element.attrib == tag]
            wanted = [text for name, text in texts.items() if not re.match("qtn_desk_(generic_name|keywords)", name)]
            self.assertEqual([text for text in wanted if text not in shown], [], language)

    def test_icons_in_all_sizes(self):
        icons = self.share / "icons/hicolor"
        for size in SIZES:
            picture = (icons / f"{size}x{size}/apps/com.korvo.clock.png").read_bytes()
            self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size))
        for name in ("scalable/apps/com.korvo.clock.svg", "symbolic/apps/com.korvo.clock-symbolic.svg"):
            self.assertTrue((icons / name).is_file(), name)

    def test_each_program_has_a_manual_page_without_faults(self):
        programs = {program.name for program in self.bin.iterdir()}
        pages = {page.name: page for page in (self.share / "man/man1").iterdir()}
        self.assertEqual({f"{program}.1.gz" for program in programs}, set(pages))
        for page in pages.values():
            done = subprocess.run(["man", "--warnings", "-l", page], capture_output=True, text=True, check=True,
                                  env={"LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANPAGER": "cat", "PATH": "/usr/bin:/bin"})
            self.assertEqual(done.stderr, "")
            self.assertIn("NAME", done.stdout)

    def test_manual_page_names_every_command_and_option(self):
        page = gzip.decompress((self.share / "man/man1/alarmctl.1.gz").read_bytes()).decode()
        described = dict(re.findall(r"^\.It Cm (\w+)(.*)", page, re.M))
        self.assertEqual(list(described), self.commands())
        for command, arguments in described.items():
            options = {f"--{name}" for name in re.findall(r"Fl -([a-z-]+)", arguments)}
            self.assertEqual(options, self.options(command) - {"--help"}, command)

    def completed(self, *words):
        """What the shell offers for the last word."""
        script = (f". {self.share}/bash-completion/completions/alarmctl; compopt() {{ :; }}; "
                  f"COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _alarmctl; printf '%s\\n' \"${{COMPREPLY[@]}}\"")
        path = f"{self.bin}:/usr/bin:/bin"
        return set(run("bash", "-c", script, "bash", "alarmctl", *words,
                       env={**getattr(self, "environment", {}), "PATH": path}).split())

    def test_shell_completes_commands_options_and_values(self):
        self.assertEqual(self.completed(""), {*self.commands(), "--help"})
        for command in self.commands():
            self.assertEqual(self.completed(command, "--"), self.options(command), command)
        self.assertEqual(self.completed("add", "--snooze", ""), {"5", "10", "15", "20", "30"})
        self.assertEqual(self.completed("add", "--days", "we"), {"wed", "weekdays"})
        self.assertIn("Europe/Berlin", self.completed("when", "--zone", "Europe/B"))

    def test_installed_programs_work_together(self):
        self.start_bus()
        self.start(self.bin / "timed", "com.astel.timed")
        self.start(self.libexec / "ringer", "com.astel.ringer")
        cookie = run(self.bin / "alarmctl", "add", "07:30", "--title", "Work", env=self.environment).strip()
        self.assertEqual(self.completed("off", ""), {cookie})
        health = subprocess.run([self.bin / "alarmctl", "health"], env=self.environment, capture_output=True, text=True,
                                check=False).stdout
        self.assertIn(f'next alarm: "Work" ({cookie})', health)
        # A plug-in that does not load comes before that.
        self.assertIn("ring screen: no display: alarms are heard, not seen", health)

    def test_a_launcher_raises_the_clock(self):
        self.start_bus()
        self.start(self.bin / "timed", "com.astel.timed")
        clock = self.start(self.bin / "clock", "com.korvo.clock")
        self.call("com.korvo.clock", "/com/korvo/clock", "org.freedesktop.Application.Activate", "{}")
        self.assertIsNone(clock.poll())

    def test_changelog_is_that_of_this_version(self):
        cache = pathlib.Path(BUILD, "CMakeCache.txt").read_text()
        version = re.search(r"^CMAKE_PROJECT_VERSION:STATIC=(.*)", cache, re.M)[1]
        for package in ("clock", "clock-dev"):
            text = gzip.decompress((self.share / "doc" / package / "changelog.gz").read_bytes()).decode()
            self.assertTrue(text.startswith(f"clock ({version})"), text)


if __name__ == "__main__":
    unittest.main(verbosity=2)
