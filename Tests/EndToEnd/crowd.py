"""Records a source with many streams, until it is ended: crowd.py SOURCE COUNT"""

import ctypes
import sys
import time

STREAMS_FOR_EACH_CONNECTION = 20
CONTEXT_READY = 4


class Format(ctypes.Structure):
    _fields_ = [("format", ctypes.c_int), ("rate", ctypes.c_uint32), ("channels", ctypes.c_uint8)]


pulse = ctypes.CDLL("libpulse.so.0")
for name in ("pa_threaded_mainloop_new", "pa_threaded_mainloop_get_api", "pa_context_new", "pa_stream_new"):
    getattr(pulse, name).restype = ctypes.c_void_p
loop = ctypes.c_void_p(pulse.pa_threaded_mainloop_new())
pulse.pa_threaded_mainloop_start(loop)
mono = Format(3, 48000, 1)  # PA_SAMPLE_S16LE
source, left = sys.argv[1].encode(), int(sys.argv[2])
while left > 0:
    pulse.pa_threaded_mainloop_lock(loop)
    api = ctypes.c_void_p(pulse.pa_threaded_mainloop_get_api(loop))
    context = ctypes.c_void_p(pulse.pa_context_new(api, b"Crowd"))
    pulse.pa_context_connect(context, None, 0, None)
    pulse.pa_threaded_mainloop_unlock(loop)
    while pulse.pa_context_get_state(context) != CONTEXT_READY:
        time.sleep(0.01)
    pulse.pa_threaded_mainloop_lock(loop)
    for _ in range(min(left, STREAMS_FOR_EACH_CONNECTION)):
        stream = ctypes.c_void_p(pulse.pa_stream_new(context, b"Crowd", ctypes.byref(mono), None))
        pulse.pa_stream_connect_record(stream, source, None, 0)
    pulse.pa_threaded_mainloop_unlock(loop)
    left -= STREAMS_FOR_EACH_CONNECTION
while True:
    time.sleep(60)
