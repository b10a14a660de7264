#pragma once

#include <map>
#include <string>
#include <utility>

namespace horavex {

/// While one is alive, what the system says of a file or of the zone counts for the rest of an
/// event-loop turn: a tick asks for the same few files a hundred times. Without one every question
/// goes to the system. One lives at a time, in the program's thread.
class SharedLooks {
public:
    using Look = std::string (*)(const std::string& path);

    SharedLooks();
    ~SharedLooks();
    SharedLooks(const SharedLooks&) = delete;
    SharedLooks& operator=(const SharedLooks&) = delete;

    /// What a look says of a path, kept where looks are shared.
    static std::string Of(Look look, const std::string& path);

    /// Looks the zone of the local clock up.
    static void FollowZone();

    /// Everything is looked at anew: a turn begins, or the program has written something itself.
    static void Renew();

private:
    std::map<std::pair<Look, std::string>, std::string> answers_;
    bool isZoneKnown_ = false;
};

}  // namespace horavex
