"""What the running prompter costs while it follows the voice and nobody speaks, on the voice-processing path.

The real program under Xvfb with software OpenGL, with a private PulseAudio: once with a microphone that delivers digital
silence, once with the noise of a quiet room, 66 dB below full scale. The text stands ready to move. Limit: 2 % of a core.
"""

import random
import time

from prompter import share_of_a_core, write_script  # First: it finds the two below.
from desktop import App, Desktop
from sound import RATE, SoundServer

SECONDS_TO_SETTLE = 5
LIMIT = 0.02


def quiet_room(seconds):
    generator = random.Random(1)
    return [generator.gauss(0, 0.0005) for _ in range(RATE)] * seconds


def measure(name, room):
    with Desktop() as desktop, SoundServer(environment=desktop.environment) as sound:
        sound.start_server()
        if room:
            sound.play((room, "air"))
        write_script(desktop, 1_000)
        App.set_defaults(desktop, countdownSeconds=0, onboardingSeenVersion=1, slideSync=False)
        app = App(desktop, "--voice", "--autostart")
        app.shown()
        app.wait_for_log("VAD listening (VPIO, AEC on)")
        time.sleep(SECONDS_TO_SETTLE)
        share = share_of_a_core(app.process.pid)
        heard = [line for line in App.log_messages(desktop) if line.startswith("VAD")]
        assert heard == ["VAD listening (VPIO, AEC on)"], heard
        app.quit()
    print(f"Voice-Follow, {name}: {share:.1%} of a core (limit {LIMIT:.0%})", flush=True)


if __name__ == "__main__":
    measure("digital silence", None)
    measure("a quiet room", quiet_room(40))
