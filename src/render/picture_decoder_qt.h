#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>

#include "book/picture.h"

namespace vireo {

// Decodes pictures with Qt's image readers. The size a file declares is
// checked against the limits before any pixel is decoded, and Qt's own
// allocation limit stands behind that check.
class QtPictureDecoder : public PictureDecoder {
 public:
  Picture Decode(std::string_view bytes, std::string& why) const override;
};

// A picture's pixels as a Qt image sharing its memory (valid while picture lives).
QImage ImageOfPicture(const Picture& picture);

// Draws the picture smoothly scaled into the rectangle (the painter's units).
void DrawPictureScaled(QPainter& painter, const Picture& picture, const QRectF& rectangle);

}  // namespace vireo
