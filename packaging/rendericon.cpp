// SPDX-License-Identifier: MIT
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

/// rendericon <svg file> <size> <png file>: draws an icon at one size.
int main(int argc, char *argv[])
{
    QStringList words;
    for (int index = 1; index < argc; ++index)
        words.append(QString::fromLocal8Bit(argv[index]));
    QSvgRenderer renderer(words.value(0));
    const int size = words.value(1).toInt();
    if (words.size() != 3 || !renderer.isValid() || size <= 0) {
        std::fprintf(stderr, "Usage: rendericon <svg file> <size> <png file>\n");
        return 2;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    if (!image.save(words.at(2), "PNG")) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(words.at(2)));
        return 1;
    }
    return 0;
}
