#pragma once

namespace horavex::look {

/// The toolkit's style that paints by the palette alone.
inline constexpr const char* kUsualStyle = "Fusion";

/// Whether the toolkit takes over the desktop's colours: it has other ones than those of the usual
/// style. A style that brings colours of its own must not be worn meanwhile.
bool DesktopHasColours();

}  // namespace horavex::look
