#include "desktop/documents/picture_file.h"

#include "base/fault.h"
#include "platform/platform.h"

namespace horavex {

QPixmap PictureAt(const std::string& path) {
    QPixmap picture;
    try {
        const Bytes bytes = Ports().programFolder.ReadWhole(path);
        picture.loadFromData(bytes.data(), static_cast<unsigned>(bytes.size()));
    } catch (const FileFault&) {
        // Without it what stands around it can still be used.
    }
    return picture;
}

}  // namespace horavex
