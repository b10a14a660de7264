#pragma once

#include <pulse/pulseaudio.h>

#include "linux/late_library.h"

/// What the program calls of libpulse, loaded with the first call.
namespace horavex::pulse {

// Ready before any constructor that may call it.
inline constinit const LateLibrary kLibrary{"libpulse.so.0"};

HORAVEX_LATE(kLibrary, pa_context_connect);
HORAVEX_LATE(kLibrary, pa_context_disconnect);
HORAVEX_LATE(kLibrary, pa_context_get_sink_info_by_index);
HORAVEX_LATE(kLibrary, pa_context_get_sink_info_list);
HORAVEX_LATE(kLibrary, pa_context_get_sink_input_info);
HORAVEX_LATE(kLibrary, pa_context_get_state);
HORAVEX_LATE(kLibrary, pa_context_new);
HORAVEX_LATE(kLibrary, pa_context_set_state_callback);
HORAVEX_LATE(kLibrary, pa_context_set_subscribe_callback);
HORAVEX_LATE(kLibrary, pa_context_subscribe);
HORAVEX_LATE(kLibrary, pa_context_unref);
HORAVEX_LATE(kLibrary, pa_cvolume_channels_equal_to);
HORAVEX_LATE(kLibrary, pa_mainloop_dispatch);
HORAVEX_LATE(kLibrary, pa_mainloop_free);
HORAVEX_LATE(kLibrary, pa_mainloop_get_api);
HORAVEX_LATE(kLibrary, pa_mainloop_new);
HORAVEX_LATE(kLibrary, pa_mainloop_poll);
HORAVEX_LATE(kLibrary, pa_mainloop_prepare);
HORAVEX_LATE(kLibrary, pa_operation_unref);
HORAVEX_LATE(kLibrary, pa_sample_spec_valid);
HORAVEX_LATE(kLibrary, pa_stream_connect_playback);
HORAVEX_LATE(kLibrary, pa_stream_disconnect);
HORAVEX_LATE(kLibrary, pa_stream_drain);
HORAVEX_LATE(kLibrary, pa_stream_get_device_index);
HORAVEX_LATE(kLibrary, pa_stream_get_device_name);
HORAVEX_LATE(kLibrary, pa_stream_get_index);
HORAVEX_LATE(kLibrary, pa_stream_get_state);
HORAVEX_LATE(kLibrary, pa_stream_get_time);
HORAVEX_LATE(kLibrary, pa_stream_new);
HORAVEX_LATE(kLibrary, pa_stream_set_state_callback);
HORAVEX_LATE(kLibrary, pa_stream_set_write_callback);
HORAVEX_LATE(kLibrary, pa_stream_unref);
HORAVEX_LATE(kLibrary, pa_stream_writable_size);
HORAVEX_LATE(kLibrary, pa_stream_write);
HORAVEX_LATE(kLibrary, pa_threaded_mainloop_free);
HORAVEX_LATE(kLibrary, pa_threaded_mainloop_get_api);
HORAVEX_LATE(kLibrary, pa_threaded_mainloop_lock);
HORAVEX_LATE(kLibrary, pa_threaded_mainloop_new);
HORAVEX_LATE(kLibrary, pa_threaded_mainloop_start);
HORAVEX_LATE(kLibrary, pa_threaded_mainloop_stop);
HORAVEX_LATE(kLibrary, pa_threaded_mainloop_unlock);
HORAVEX_LATE(kLibrary, pa_usec_to_bytes);

}  // namespace horavex::pulse
