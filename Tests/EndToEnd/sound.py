"""A private sound server to speak to the program: null sinks as loudspeaker and air, a microphone that hears the air."""

import array
import contextlib
import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time
import wave

from waiting import wait_until

RATE = 48000


# The tests run on either: "pulseaudio", or "pipewire" with its stand-in for PulseAudio's protocol and its policy.
KIND = os.environ.get("ORVELLO_SOUND_SERVER", "pulseaudio")


class SoundServer(contextlib.ExitStack):
    """A sound server with a home of its own. Everything is started here and stopped here, by process id."""

    PROTOCOL = "module-native-protocol-unix"
    MODULES = [
        "module-null-sink sink_name=speakers rate=48000 channels=2",
        "module-null-sink sink_name=air rate=48000 channels=1",
        "module-remap-source master=air.monitor source_name=microphone channels=1",
    ]

    def __init__(self, modules=None, default_source="microphone", default_sink="speakers", environment=None):
        super().__init__()
        self.modules = self.MODULES if modules is None else modules
        self.default_source = default_source
        self.default_sink = default_sink
        self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="orvello-sound-"))
        self.callback(shutil.rmtree, self.scratch, ignore_errors=True)
        if environment is None:
            runtime = self.scratch / "runtime"
            runtime.mkdir(mode=0o700)
            environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": str(self.scratch),
                           "XDG_RUNTIME_DIR": str(runtime)}
        self.environment = environment
        self.servers = []
        self.callback(self.stop_server)

    def start_server(self):
        if KIND == "pipewire":
            self._start_pipewire()
        else:
            self._start_pulseaudio()
        if self.default_source:
            self.control("set-default-source", self.default_source)
        if self.default_sink:
            self.control("set-default-sink", self.default_sink)
        # PipeWire's policy takes the new defaults in its own time, and where there is neither it still has its dummy.
        for kind, name in (("Source", self.default_source), ("Sink", self.default_sink)):
            if name:
                wait_until(lambda: f"Default {kind}: {name}\n" in self.control("info"), what=f"{name} as the default")

    def _start_pulseaudio(self):
        script = self.scratch / "server.pa"
        script.write_text("".join(f"load-module {module}\n" for module in [self.PROTOCOL, *self.modules]))
        self.servers = [self.start(
            ["pulseaudio", "-n", "-F", str(script), "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
             "--disable-shm=yes", "--log-target=stderr"])]
        wait_until(self._answers, what="the sound server")

    def _start_pipewire(self):
        if "ORVELLO_SOUND_BUS" not in self.environment:
            read_end, write_end = os.pipe()
            self.start(["dbus-daemon", "--session", "--nofork", f"--print-address={write_end}"], pass_fds=(write_end,))
            os.close(write_end)
            with os.fdopen(read_end) as pipe:
                self.environment["ORVELLO_SOUND_BUS"] = pipe.readline().strip()
        bus = {"DBUS_SESSION_BUS_ADDRESS": self.environment["ORVELLO_SOUND_BUS"]}
        self.servers = [self.start(["pipewire"], bus)]
        runtime = pathlib.Path(self.environment["XDG_RUNTIME_DIR"])
        # The server gives up when a client that asks early makes this folder between its look and its own attempt.
        (runtime / "pulse").mkdir(mode=0o700, exist_ok=True)
        wait_until((runtime / "pipewire-0").exists, what="PipeWire")
        self.servers += [self.start([name], bus) for name in ("wireplumber", "pipewire-pulse")]
        wait_until(self._answers, what="the sound server")
        for module in self.modules:
            self.control("load-module", *module.split())

    def _answers(self):
        for server in self.servers:
            if server.poll() is not None:
                raise AssertionError((self.scratch / f"{pathlib.Path(server.args[0]).name}.log").read_text())
        return subprocess.run(["pactl", "info"], env=self.environment, capture_output=True).returncode == 0

    def stop_server(self):
        self.thaw()
        for server in reversed(self.servers):
            self.stop(server)
        self.servers = []

    def kill_server(self):
        """As a crash ends it."""
        for server in self.servers:
            server.kill()
            server.wait()
        self.servers = []

    def freeze(self):
        """Keeps the server from answering, until thaw()."""
        for server in self.servers:
            server.send_signal(signal.SIGSTOP)

    def thaw(self):
        for server in self.servers:
            if server.poll() is None:
                server.send_signal(signal.SIGCONT)

    def start(self, command, environment=None, **options):
        """Starts a process that ends with the server at the latest."""
        log = open(self.scratch / f"{pathlib.Path(command[0]).name}.log", "ab")
        self.callback(log.close)
        options = {"stdout": log, "stderr": log, "stdin": subprocess.DEVNULL} | options
        process = subprocess.Popen(command, env=self.environment | (environment or {}), **options)
        self.callback(self.stop, process)
        return process

    @staticmethod
    def stop(process):
        if process.poll() is None:
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    def control(self, *words):
        return subprocess.run(["pactl", *words], env=self.environment, check=True, capture_output=True, text=True,
                              timeout=20).stdout

    def play(self, *parts):
        """Begins to play pairs of samples and sink, all at the same time; returns the players' processes."""
        commands = []
        for samples, sink in parts:
            path = self.scratch / f"play-{time.monotonic_ns()}.wav"
            write_wave(path, samples)
            commands.append(["paplay", f"--device={sink}", "--latency-msec=30", str(path)])
        return [self.start(command) for command in commands]


class PausingRecorder:
    """Another program on the microphone that can pause its recording, which the command line programs cannot. It
    records in this process."""

    RECORDING_PAUSED = 1  # PA_STREAM_START_CORKED
    READY = {"context": 4, "stream": 2}  # PA_CONTEXT_READY, PA_STREAM_READY

    class Format(ctypes.Structure):
        _fields_ = [("format", ctypes.c_int), ("rate", ctypes.c_uint32), ("channels", ctypes.c_uint8)]

    def __init__(self, sound, source):
        self.pulse = ctypes.CDLL("libpulse.so.0")
        self.loop = ctypes.c_void_p(self._new("pa_threaded_mainloop_new"))
        self.call("pa_threaded_mainloop_start", self.loop)
        sound.callback(self.call, "pa_threaded_mainloop_stop", self.loop)
        api = ctypes.c_void_p(self._new("pa_threaded_mainloop_get_api", self.loop))
        self.context = ctypes.c_void_p(self._new("pa_context_new", api, b"Recorder"))
        server = f"unix:{sound.environment['XDG_RUNTIME_DIR']}/pulse/native".encode()
        self.call("pa_context_connect", self.context, server, 0, None)
        self._wait_until_ready("context", self.context)
        mono = self.Format(3, RATE, 1)  # PA_SAMPLE_S16LE
        self.stream = ctypes.c_void_p(
            self._new("pa_stream_new", self.context, b"Paused recording", ctypes.byref(mono), None))
        self.call("pa_stream_connect_record", self.stream, source.encode(), None, self.RECORDING_PAUSED)
        self._wait_until_ready("stream", self.stream)

    def record(self, on):
        self.call("pa_stream_cork", self.stream, 0 if on else 1, None, None)

    def call(self, name, *arguments):
        """A function of the library, kept apart from its thread unless it is about that thread."""
        function = getattr(self.pulse, name)
        if name.startswith("pa_threaded_mainloop_"):
            return function(*arguments)
        self.pulse.pa_threaded_mainloop_lock(self.loop)
        try:
            return function(*arguments)
        finally:
            self.pulse.pa_threaded_mainloop_unlock(self.loop)

    def _new(self, name, *arguments):
        getattr(self.pulse, name).restype = ctypes.c_void_p
        return self.call(name, *arguments)

    def _wait_until_ready(self, kind, thing):
        wait_until(lambda: self.call(f"pa_{kind}_get_state", thing) == self.READY[kind], what=f"the recorder's {kind}")


class Recorders:
    """A crowd of record streams of other programs, twenty for each connection; a server takes no more of those than 64."""

    def __init__(self, sound, source, count):
        program = pathlib.Path(__file__).with_name("crowd.py")
        self.process = sound.start(["/usr/bin/python3", str(program), source, str(count)])
        wait_until(lambda: sound.control("list", "source-outputs").count('application.name = "Crowd"') >= count, 60,
                   "the crowd")
        self.stop = lambda: sound.stop(self.process)


class Probe:
    """The voice engine without a window; see VoiceProbe.cpp."""

    def __init__(self, sound, command=None, environment=None):
        self.output = sound.scratch / f"probe-{time.monotonic_ns()}.txt"
        folder = sound.scratch / "probe-home"
        folder.mkdir(exist_ok=True)
        with open(self.output, "wb") as output:
            self.process = subprocess.Popen(
                [*(command or [os.environ["ORVELLO_VOICE_PROBE"]]), str(folder)],
                env=sound.environment | (environment or {}), stdin=subprocess.PIPE, stdout=output, stderr=subprocess.STDOUT)
        sound.callback(sound.stop, self.process)
        sound.callback(self.process.stdin.close)

    def command(self, line):
        self.process.stdin.write(line.encode() + b"\n")
        self.process.stdin.flush()

    def lines(self):
        """What it logged so far, as (monotonic time, message)."""
        result = []
        for line in self.output.read_text().splitlines():
            moment, _, message = line.partition(" ")
            with contextlib.suppress(ValueError):
                result.append((float(moment), message))
        return result

    def messages(self):
        return [message for _, message in self.lines()]

    def wait_for(self, message, seconds=5.0, since=0.0):
        """When a message that begins like this first came after a moment."""
        def found():
            if self.process.poll() is not None:
                raise AssertionError(f"the probe ended ({self.process.returncode}):\n{self.output.read_text()}")
            return [moment for moment, text in self.lines() if moment >= since and text.startswith(message)]
        return wait_until(found, seconds, f"{message!r} in\n{self.output.read_text()}")[0]

    def answer(self, question):
        asked = time.monotonic()
        self.command(question)
        self.wait_for(question, since=asked)
        return [text for moment, text in self.lines() if moment >= asked and text.startswith(question)][0]

    def share_of_speaking(self, begin, end):
        """For which part of a time the gate was open."""
        is_open, last, total = False, begin, 0.0
        for moment, message in self.lines() + [(end, "VAD speaking=end")]:
            if not message.startswith("VAD speaking="):
                continue
            now = min(max(moment, begin), end)
            total += (now - last) if is_open else 0.0
            last, is_open = now, message.startswith("VAD speaking=1")
        return total / (end - begin)


# Signals: lists of floats at RATE.

def speech(text, scratch, voice="en", level=0.1, speed=150):
    """Spoken text, without the silence around it, at a loudness (RMS) of `level`."""
    path = pathlib.Path(scratch) / "speech.wav"
    subprocess.run(["espeak-ng", "-v", voice, "-s", str(speed), "-w", str(path), text], check=True, capture_output=True)
    return recording(path, level)


def recording(path, level=0.1):
    """A file with one channel, as speech()."""
    with wave.open(str(path)) as file:
        assert file.getnchannels() == 1 and file.getsampwidth() == 2
        rate = file.getframerate()
        raw = array.array("h", file.readframes(file.getnframes()))
    samples = resampled([value / 32768 for value in raw], rate)
    loud = [index for index, value in enumerate(samples) if abs(value) > 0.01]
    samples = samples[loud[0]:loud[-1] + 1]
    rms = (sum(value * value for value in samples) / len(samples)) ** 0.5
    return [value * level / rms for value in samples]


def resampled(samples, rate):
    step = rate / RATE
    result = []
    for index in range(int(len(samples) / step) - 1):
        position = index * step
        low = int(position)
        part = position - low
        high = min(low + 1, len(samples) - 1)
        result.append(samples[low] * (1 - part) + samples[high] * part)
    return result


def silence(seconds):
    return [0.0] * int(seconds * RATE)


def scaled(samples, decibels):
    factor = 10 ** (decibels / 20)
    return [value * factor for value in samples]


def mixed(*signals):
    length = max(len(signal) for signal in signals)
    result = [0.0] * length
    for signal in signals:
        for index, value in enumerate(signal):
            result[index] += value
    return result


def write_wave(path, samples):
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(array.array("h", [max(-32768, min(32767, int(value * 32767))) for value in samples]).tobytes())
