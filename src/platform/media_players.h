#pragma once

namespace horavex {

/// Other programs of the session that play music or films. Never fails and never waits.
class MediaPlayers {
public:
    virtual ~MediaPlayers() = default;

    /// Pauses those that play. Those of an earlier pause are still to go on.
    virtual void PauseAll() = 0;

    /// Lets those go on which it has paused, unless the user has dealt with them meanwhile.
    virtual void GoOn() = 0;
};

}  // namespace horavex
