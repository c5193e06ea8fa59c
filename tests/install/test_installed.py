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

PROGRAMS = ("alarmctl", "clock", "clock-backup", "timed")
SIZES = (16, 22, 24, 32, 48, 64, 96, 128, 192, 256, 512)
SERVICES = ("com.astel.context.Alarm.Trigger", "com.astel.ringer", "com.astel.ringer.fallback", "com.astel.timed",
            "com.korvo.clock")
# Whether it may be installed anywhere else is for a reader of this list to say.
FOLDERS = ("bin", "include/clock", "lib", "libexec/clock", "share/applications", "share/bash-completion/completions",
           "share/clock-backup/participants", "share/dbus-1", "share/doc", "share/icons/hicolor", "share/man",
           "share/metainfo", "share/sounds/ring-tones")


class Installed(StagedCase):
    def options(self, program, *command):
        """The long options that a help text lists."""
        return set(re.findall(r"^  (--[a-z-]+)", run(self.bin / program, *command, "--help"), re.M))

    def commands(self, program):
        """Those that the program's help lists, if it has any."""
        listed = re.search(r"^Commands:\n(.*?)\n\n", run(self.bin / program, "--help"), re.M | re.S)
        return re.findall(r"^  ([a-z]+)  ", listed[1], re.M) if listed else []

    @staticmethod
    def version():
        cache = pathlib.Path(BUILD, "CMakeCache.txt").read_text()
        return re.search(r"^CMAKE_PROJECT_VERSION:STATIC=(.*)", cache, re.M)[1]

    def test_everything_is_there(self):
        wanted = [self.bin / name for name in PROGRAMS]
        wanted += [self.libexec / name for name in ("clock-ring-fallback", "clock-rtc", "ringer")]
        wanted += [self.lib / "clock/ringer/libclockalarm.so"]
        wanted += [self.share / "dbus-1/services" / f"{name}.service" for name in SERVICES]
        wanted += [self.stage / "lib/systemd" / unit for unit in (
            "user/timed.service", "system/clock-rtc.service", "system/user@.service.d/wake-alarm.conf")]
        wanted += [self.stage / "lib/tmpfiles.d/clock-rtc.conf"]
        wanted += [self.share / "applications/com.korvo.clock.desktop",
                   self.share / "metainfo/com.korvo.clock.metainfo.xml",
                   self.share / "clock-backup/participants/com.korvo.clock.conf"]
        wanted += [self.share / "bash-completion/completions" / name for name in PROGRAMS]
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
        captions = re.findall(r"<caption", (self.folder / name).read_text())
        self.assertEqual(len(captions), len(pictures) * len(self.catalogues()) / 2)

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
            wanted = [text for name, text in texts.items()
                      if not re.match("qtn_desk_(generic_name|keywords|picture)", name)]
            self.assertEqual([text for text in wanted if text not in shown], [], language)

    def test_icons_in_all_sizes(self):
        icons = self.share / "icons/hicolor"
        for size in SIZES:
            picture = (icons / f"{size}x{size}/apps/com.korvo.clock.png").read_bytes()
            self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size))
        for name in ("scalable/apps/com.korvo.clock.svg", "symbolic/apps/com.korvo.clock-symbolic.svg"):
            self.assertTrue((icons / name).is_file(), name)

    def test_each_program_has_a_manual_page_without_faults(self):
        self.assertEqual({program.name for program in self.bin.iterdir()}, set(PROGRAMS))
        pages = {page.name: page for page in (self.share / "man/man1").iterdir()}
        self.assertEqual({f"{program}.1.gz" for program in PROGRAMS}, set(pages))
        for page in pages.values():
            done = subprocess.run(["man", "--warnings", "-l", page], capture_output=True, text=True, check=True,
                                  env={"LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANPAGER": "cat", "PATH": "/usr/bin:/bin"})
            self.assertEqual(done.stderr, "")
            self.assertIn("NAME", done.stdout)

    def test_manual_pages_name_every_command_and_option(self):
        for program in PROGRAMS:
            page = gzip.decompress((self.share / f"man/man1/{program}.1.gz").read_bytes()).decode()
            described = dict(re.findall(r"^\.It Cm (\w+)(.*)", page, re.M))
            known = self.options(program)
            self.assertEqual(list(described), self.commands(program), program)
            for command, arguments in described.items():
                options = {f"--{name}" for name in re.findall(r"Fl -([a-z-]+)", arguments)}
                self.assertEqual(options, self.options(program, command) - {"--help"}, f"{program} {command}")
                known |= options
            explained = {f"--{name}" for name in re.findall(r"^\.It Fl -([a-z-]+)", page, re.M)}
            self.assertLessEqual(self.options(program), explained, program)
            self.assertLessEqual(explained, known, program)

    def completed(self, program, *words):
        """What the shell offers for the last word."""
        script = (f". {self.share}/bash-completion/completions/{program}; compopt() {{ :; }}; COMP_WORDS=(\"$@\"); "
                  f"COMP_CWORD=$(($# - 1)); _{program.replace('-', '_')}; printf '%s\\n' \"${{COMPREPLY[@]}}\"")
        path = f"{self.bin}:/usr/bin:/bin"
        return set(run("bash", "-c", script, "bash", program, *words,
                       env={**getattr(self, "environment", {}), "PATH": path}).split())

    def test_shell_completes_commands_and_options(self):
        for program in PROGRAMS:
            self.assertEqual(self.completed(program, ""), {*self.commands(program), *self.options(program)}, program)
            self.assertEqual(self.completed(program, "--v"), {"--version"}, program)
            for command in self.commands(program):
                self.assertEqual(self.completed(program, command, "--"), self.options(program, command),
                                 f"{program} {command}")

    def test_shell_completes_values(self):
        self.assertEqual(self.completed("alarmctl", "add", "--snooze", ""), {"5", "10", "15", "20", "30"})
        self.assertEqual(self.completed("alarmctl", "add", "--days", "we"), {"wed", "weekdays"})
        self.assertIn("Europe/Berlin", self.completed("alarmctl", "when", "--zone", "Europe/B"))
        backup = self.folder / "night.backup"
        backup.touch()
        for command in self.commands("clock-backup"):
            self.assertEqual(self.completed("clock-backup", command, f"{self.folder}/ni"), {str(backup)})
            self.assertEqual(self.completed("clock-backup", command, "--timeout", ""), set())

    def test_each_program_tells_its_version(self):
        for program in PROGRAMS:
            self.assertEqual(run(self.bin / program, "--version"), f"{program} {self.version()}\n")

    def test_programs_refuse_what_they_do_not_know(self):
        for program in ("alarmctl", "clock-backup", "timed"):
            done = subprocess.run([self.bin / program, "--frob"], capture_output=True, text=True, check=False)
            self.assertEqual((done.returncode, done.stdout), (2, ""), program)
            self.assertIn('"--frob"', done.stderr)
            self.assertIn(f'Try "{program} --help".', done.stderr)

    def test_installed_programs_work_together(self):
        self.start_bus()
        self.start(self.bin / "timed", "com.astel.timed")
        self.start(self.libexec / "ringer", "com.astel.ringer")
        cookie = run(self.bin / "alarmctl", "add", "07:30", "--title", "Work", env=self.environment).strip()
        self.assertEqual(self.completed("alarmctl", "off", ""), {cookie})
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
        for package in ("clock", "clock-dev"):
            text = gzip.decompress((self.share / "doc" / package / "changelog.gz").read_bytes()).decode()
            self.assertTrue(text.startswith(f"clock ({self.version()})"), text)


if __name__ == "__main__":
    unittest.main(verbosity=2)
