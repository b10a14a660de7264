#pragma once

namespace horavex {

// A picked city brings along what is usual there: on a first run, in its wizard, until something is
// accepted; later only as long as the accepted options and angles are still those that are usual at
// the accepted place. Who has chosen anything else, or never ran the wizard of a first run, keeps
// what there is.

/// True in the wizard of a first run, as long as nothing was accepted.
bool IsFirstChoice();

/// Behind a pick: proposes the method and the rule of high latitudes that are usual at the working
/// place, and on a first run the school of Asr, the published Hijri calendar and the sun of the
/// day. The angles go onto the sliders of both windows, the rest waits as chosen options for a
/// commit.
void FollowUsualChoices();

}  // namespace horavex
