#pragma once

#include <QImage>
#include <QString>

#include <vector>

namespace corvane::demo {

/// Small pictures with captions, arranged on one large picture. Drawing text requires a
/// QGuiApplication.
class ContactSheet {
public:
    void add(const QString& caption, const QImage& picture) {
        m_pictures.push_back({caption, picture});
    }

    /// All pictures in the order in which they were added, none enlarged.
    QImage draw() const;

private:
    struct Picture {
        QString caption;
        QImage image;
    };

    std::vector<Picture> m_pictures;
};

} // namespace corvane::demo
