# SPDX-License-Identifier: GPL-3.0-or-later
"""A virtual display with a window manager, a message bus and assistive technology of its own.

There is one in a process: assistive tools connect once. What it starts ends with it, and with
this process.
"""
import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile

from stage.conditions import until

HERE = pathlib.Path(__file__).resolve().parent

PR_SET_PDEATHSIG = 1
PR_SET_CHILD_SUBREAPER = 36
PASSED_ON = ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")

libc = ctypes.CDLL(None)


def die_with_parent():
    libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


def children_of(process_id):
    found = []
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            fields = stat.read_text().rpartition(")")[2].split()
        except OSError:
            continue
        if int(fields[1]) == process_id:
            found.append(int(stat.parent.name))
    return found


class Desktop:
    def __init__(self, size="1024x768", scale=1):
        self.width, self.height = (int(part) for part in size.split("x"))
        self.scale = scale
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="tanglewit-"))
        self._log = open(self._folder / "log", "wb")
        self._services = []
        self._homes = 0
        # Whatever a child leaves behind becomes this process's child and is ended with the rest.
        libc.prctl(PR_SET_CHILD_SUBREAPER, 1)
        self._settle_environment()

    def __enter__(self):
        try:
            self._start_display()
            self._start_bus()
            self._serve(["openbox", "--config-file", HERE / "openbox.xml"])
            until("a window manager", self._has_window_manager)
            subprocess.run(["xkbcomp", "-w0", HERE / "keyboard.xkb", os.environ["DISPLAY"]],
                           check=True, stderr=self._log)
            self._see_accessibly()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        while children := children_of(os.getpid()):
            for child in children:
                try:
                    os.kill(child, signal.SIGKILL)
                    os.waitpid(child, 0)
                except (ProcessLookupError, ChildProcessError):
                    pass  # ended by itself in the meantime
        for service in self._services:
            service.poll()
            if service.stdout:
                service.stdout.close()
        self._log.close()
        shutil.rmtree(self._folder, ignore_errors=True)

    def new_home(self):
        """Makes an empty home folder; programs that are started from now on live there."""
        self._homes += 1
        home = self._folder / str(self._homes) / "anna"
        home.mkdir(parents=True)
        os.environ["HOME"] = str(home)
        return home

    def start(self, *command):
        return self._start([str(part) for part in command])

    def picture(self, file, box=None, still=None):
        """Keeps a picture of the screen, or of a part, once nothing on it moves any more.

        Where something always moves, `still` is the part that has to be at rest.
        """
        def pixels(part):
            area = ["-crop", f"{part.width}x{part.height}+{part.x}+{part.y}", "+repage"] \
                if part else []
            return subprocess.run(
                ["import", "-silent", "-window", "root", *area, "ppm:-"],
                check=True, capture_output=True,
            ).stdout

        watched = still or box
        shots = [pixels(watched)]

        def settled():
            shots.append(pixels(watched))
            return shots[-1] == shots[-2]

        until(f"the screen at rest for {file.name}", settled)
        shown = pixels(box) if still else shots[-1]
        subprocess.run(["convert", "ppm:-", "-strip", file], input=shown, check=True)

    def _settle_environment(self):
        kept = {name: os.environ[name] for name in PASSED_ON if name in os.environ}
        os.environ.clear()
        os.environ.update(kept)
        os.environ.update(
            LANG="C.UTF-8",
            XDG_RUNTIME_DIR=str(self._folder),
            QT_ACCESSIBILITY="1",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            QT_SCALE_FACTOR=str(self.scale),
        )
        self.new_home()

    def _start(self, command, **options):
        options.setdefault("stdout", self._log)
        return subprocess.Popen(
            command, stderr=self._log, stdin=subprocess.DEVNULL, preexec_fn=die_with_parent,
            **options,
        )

    def _serve(self, command, **options):
        self._services.append(self._start(command, **options))
        return self._services[-1]

    def _start_display(self):
        reading, writing = os.pipe()
        screen = f"{self.width}x{self.height}x24"
        self._serve(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", screen, "-nolisten", "tcp",
             "-noreset"],
            pass_fds=[writing],
        )
        os.close(writing)
        with os.fdopen(reading) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()

    def _start_bus(self):
        bus = self._serve(
            ["dbus-daemon", "--session", "--nofork", "--print-address=1"],
            stdout=subprocess.PIPE, text=True,
        )
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()

    def _has_window_manager(self):
        return subprocess.run(
            ["xdotool", "get_desktop"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        ).returncode == 0

    def _see_accessibly(self):
        from gi.repository import Atspi

        Atspi.init()
        # Nobody listens to its events here, so it must not remember what was once true.
        Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
