#pragma once

#include <QImage>
#include <QString>
#include <string>

#include "desktop/shots/scenes.h"

namespace horavex {

/// A scene as it looked.
struct Shot {
    QString name;   // of the scene
    QString title;  // of its window in front
    QImage image;   // all its windows as they lie on the screen, transparent around them
};

/// Plays a scene in a language. Throws std::runtime_error for one that looks at nothing, and for
/// one in which a message comes up.
Shot ShotOf(const Scene& scene, const std::string& language);

/// Writes a picture as a small PNG file. False where that cannot be done.
bool Save(const QImage& picture, const QString& file);

}  // namespace horavex
