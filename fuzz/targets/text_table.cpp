#include "store/text_table.h"

#include "base/fault.h"
#include "base/utf8.h"
#include "fuzz/damaged_folder.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"

namespace horavex {

void FuzzTextTable(ByteView bytes) {
    FuzzInput input(bytes);
    const auto entry = static_cast<TextEntry>(input.TakeInt16());
    const std::int16_t language = input.TakeInt16();
    const DamagedFolder folder(input, {"Dat/T.DAT", "Dat/TI.DAT"});
    RunStep([&] { Require(IsUtf8(TextItem(entry, language)), "texts are UTF-8"); });
    RunStep([] { Require(IsUtf8(TextItem(TextEntry::kFajr, kArabicColumn)), "texts are UTF-8"); });
}

}  // namespace horavex
