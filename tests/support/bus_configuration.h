#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace horavex {

/// Writes the configuration of a bus that starts no service but those of the folder "services"
/// beside it, whatever is installed on the machine. Returns its path. The bus listens at
/// "unix:path=" and the folder's "bus".
inline std::string WriteBusConfiguration(const std::string& folder) {
    std::filesystem::create_directories(folder + "/services");
    const std::string path = folder + "/bus.conf";
    std::ofstream(path) << "<busconfig><type>session</type><listen>unix:path=" << folder
                        << "/bus</listen><auth>EXTERNAL</auth><servicedir>" << folder
                        << "/services</servicedir><policy context=\"default\">"
                           "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                           "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n";
    return path;
}

}  // namespace horavex
