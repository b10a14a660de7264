#include "timetables/drawing_file.h"

#include "base/fault.h"
#include "base/text.h"
#include "forms/drawing_svg.h"
#include "lang/own_digits.h"
#include "platform/platform.h"
#include "timetables/document_tools.h"

namespace horavex {

namespace {

bool EndsWith(const std::string& path, const char* ending) {
    return AsciiLower(path).ends_with(ending);
}

/// Its texts in the digits that users chose.
Drawing ForReaders(Drawing drawing) {
    for (DrawingStep& step : drawing) {
        if (auto* text = std::get_if<TextStep>(&step)) {
            text->text = InShownDigits(text->text);
        }
    }
    return drawing;
}

}  // namespace

bool IsDrawingPath(const std::string& path) {
    return EndsWith(path, ".svg") || EndsWith(path, ".png");
}

void WriteDrawing(const std::string& path, const Drawing& drawing, double width, double height) {
    if (!EndsWith(path, ".png")) {
        WriteChosenFile(Ports().files, path,
                        BytesOf(DrawingSvg(ForReaders(drawing), width, height)));
    } else if (const DocumentTools& tools = InstalledDocumentTools(); tools.writePng) {
        tools.writePng(path, drawing, width, height);
    } else {
        throw Fault("what draws PNG comes with the desktop program, which is not installed");
    }
}

}  // namespace horavex
