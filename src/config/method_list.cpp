#include "config/method_list.h"

#include "store/angle_band.h"
#include "store/text_table.h"

namespace horavex {

namespace {

std::string Refusal(std::int16_t language) {
    return TextItem(TextEntry::kOutsideBand, language) + " " + std::to_string(AngleBand.smallest) +
           " - " + std::to_string(AngleBand.largest);
}

}  // namespace

void FillMethodRows(ComboBox& list, std::int16_t language) {
    list.Clear();
    list.AddItem(TextItem(TextEntry::kCustom, language));
    const std::string refusal = Refusal(language);
    for (const Method& method : Methods()) {
        list.AddItem(TextItem(method.name, language));
        list.SetItemRefusal(list.ListCount() - 1, FitsBand(method) ? "" : refusal);
    }
}

int RowOfAngles(double fajrAngle, double ishaAngle) {
    int row = 1;
    for (const Method& method : Methods()) {
        if (method.fajrAngle == fajrAngle && method.ishaAngle == ishaAngle) {
            return row;
        }
        ++row;
    }
    return 0;
}

}  // namespace horavex
