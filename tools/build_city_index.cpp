// Writes the index of the cities' names from the compiled location files. Arguments: the folder of
// the data files, which takes it, too.

#include <iostream>

#include "lib/data_writer.h"
#include "lib/text_source.h"
#include "lib/tool_platform.h"
#include "store/city_index.h"

namespace {

using namespace horavex;

void Build(char** arguments) {
    ToolPlatform platform;
    const std::string folder = arguments[0];
    for (const std::string file :
         {"SI.DAt", "S.DAT", "CI.DAT", "C.DAt", "PI.DAT", "P.DAT", "N.DAT"}) {
        platform.files.WriteWhole("/program/Dat/" + file, BytesOf(ReadText(folder + "/" + file)));
    }
    const Bytes index = MakeCityIndex();
    WriteDataFile(folder, "NI.DAT", index);
    std::cout << index.size() / 6 << " names of cities\n";
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("build_city_index", argumentCount, 1, Build, arguments);
}
