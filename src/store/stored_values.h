#pragma once

#include <string>

namespace horavex {

// The Isha angle and the language pack: the values that the registry keeps beside the records.

/// The name of the Isha angle in the registry, and the angle of a first run.
inline constexpr const char* kIshaValueName = "Isha Dep Angle";
inline constexpr const char* kFirstIshaAngle = "18";

/// The Isha angle of the accepted settings, degrees; IshaAngle is the working one. Written by the
/// start and by each change that is accepted.
extern double ActiveIshaAngle;

/// Reads IshaAngle from the registry at start. A missing value, or one below 0, is a first run:
/// "18" is written, and the value is read again. ActiveIshaAngle takes it, too. Returns whether
/// this is a first run.
bool LoadIshaAngle();

/// Whether a start would find the value there, and so be no first run. Writes nothing.
bool IshaAngleIsStored();

/// Reads IshaAngle again as the settings window's close box does; -1 where none is stored.
void ReloadIshaAngle();

/// Reads IshaAngle without writing anything; 18 where a start would make it a first run.
void PeekIshaAngle();

/// Writes IshaAngle to the registry in the general form of a number.
void SaveIshaAngle();

/// The stored name of the language pack; "English" where none is stored.
std::string ReadStoredLanguage();

/// Stores the name of the language pack in use.
void SaveStoredLanguage(const std::string& language);

}  // namespace horavex
