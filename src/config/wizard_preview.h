#pragma once

namespace horavex {

/// Today's times with the working settings and the working place, before anything is accepted.
/// A day without them is told in the message of the year's calculation. The place of the accepted
/// year stays the engine's.
/// The same settings twice in a row are worked out, and complained of, once.
void SetTodayPrayerTimes();

/// The times on view are gone: the next preview is worked out whatever it shows.
void ForgetPreview();

/// Puts previews off as long as it lives, where several controls move at once: the values on the
/// way may belong to no day at all. One preview comes at the end, if any was asked for.
class PreviewHold {
public:
    PreviewHold();
    ~PreviewHold() noexcept(false);
    PreviewHold(const PreviewHold&) = delete;
    PreviewHold& operator=(const PreviewHold&) = delete;
};

}  // namespace horavex
