#include "lib/city_walk.h"

#include "base/fault.h"
#include "lib/data_writer.h"
#include "lib/text_source.h"

namespace horavex {

void ReadProgramFolder(const std::string& folder, MemoryFiles& files) {
    for (const std::string file :
         {"SI.DAt", "S.DAT", "CI.DAT", "C.DAt", "PI.DAT", "P.DAT", "ZI.DAT", "Z.DAT", "UQ.DAT"}) {
        files.WriteWhole("/program/Dat/" + file, BytesOf(ReadText(folder + "/Dat/" + file)));
    }
}

std::size_t StepOf(const std::string& text) {
    const int step = WholeNumber(text);
    if (step < 1) {
        throw BoundsFault("the step is 1 or more, not " + text);
    }
    return static_cast<std::size_t>(step);
}

}  // namespace horavex
