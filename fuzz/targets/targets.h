#pragma once

#include "base/bytes.h"

namespace horavex {

// One function a target, each in the source of its name.
void FuzzBusRequests(ByteView input);
void FuzzCityLists(ByteView input);
void FuzzCoordinates(ByteView input);
void FuzzCsv(ByteView input);
void FuzzDates(ByteView input);
void FuzzHijriTable(ByteView input);
void FuzzLanguagePack(ByteView input);
void FuzzLocationFiles(ByteView input);
void FuzzNumbers(ByteView input);
void FuzzPlaceLines(ByteView input);
void FuzzRegistryFile(ByteView input);
void FuzzSettingsRecord(ByteView input);
void FuzzSoundFile(ByteView input);
void FuzzTextTable(ByteView input);
void FuzzTexts(ByteView input);
void FuzzUpdateBody(ByteView input);
void FuzzZonesAndNames(ByteView input);

}  // namespace horavex
