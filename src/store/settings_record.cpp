#include "store/settings_record.h"

#include <algorithm>
#include <type_traits>

#include "base/program_state.h"

namespace horavex {

SettingsRecord Settings;
SettingsRecord ActiveSettings;
double IshaAngle = 0.0;

namespace {

const ProgramStateReset reset([] {
    Settings = {};
    ActiveSettings = {};
    IshaAngle = 0.0;
});

/// Calls visit with every field in the order of the disk.
template <typename Record, typename Visitor>
void VisitFields(Record& record, Visitor visit) {
    visit(record.Reserved);
    visit(record.FajrAngle);
    visit(record.AsrRatio);
    visit(record.DstEnabled);
    visit(record.DstStart);
    visit(record.DstEnd);
    visit(record.AthanType);
    visit(record.QiblaMethod);
    visit(record.Language);
    visit(record.CityIndex);
    visit(record.TimeZone);
    visit(record.AlarmTime);
    visit(record.AlarmEnabled);
}

template <typename Field>
void PutField(SettingsBytes& bytes, std::size_t offset, const Field& field) {
    if constexpr (std::is_same_v<Field, double>) {
        PutFloat64(bytes, offset, field);
    } else if constexpr (std::is_same_v<Field, std::int16_t>) {
        PutInt16(bytes, offset, field);
    } else {
        std::copy(field.begin(), field.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
    }
}

template <typename Field>
void GetField(const SettingsBytes& bytes, std::size_t offset, Field& field) {
    if constexpr (std::is_same_v<Field, double>) {
        field = GetFloat64(bytes, offset);
    } else if constexpr (std::is_same_v<Field, std::int16_t>) {
        field = GetInt16(bytes, offset);
    } else {
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), field.size(),
                    field.begin());
    }
}

}  // namespace

SettingsBytes EncodeSettings(const SettingsRecord& record) {
    SettingsBytes bytes{};
    std::size_t offset = 0;
    VisitFields(record, [&](const auto& field) {
        PutField(bytes, offset, field);
        offset += sizeof field;
    });
    return bytes;
}

SettingsRecord DecodeSettings(const SettingsBytes& bytes) {
    SettingsRecord record;
    std::size_t offset = 0;
    VisitFields(record, [&](auto& field) {
        GetField(bytes, offset, field);
        offset += sizeof field;
    });
    return record;
}

}  // namespace horavex
