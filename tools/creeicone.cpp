// Renders an SVG picture into a Windows icon file, one PNG image a size.

#include <QBuffer>
#include <QDataStream>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int tailles[] = {16, 24, 32, 48};

QByteArray enPng(QSvgRenderer &dessin, int taille)
{
    QImage image(taille, taille, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter peintre(&image);
    dessin.render(&peintre);
    peintre.end();
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    return image.save(&png, "PNG") ? png.data() : QByteArray();
}

/// Directory of an icon file, then the pictures. Qt's own writer keeps one size only.
bool ecrit(const QString &fichier, const QList<QByteArray> &images)
{
    constexpr quint32 tailleEntete = 6;
    constexpr quint32 tailleEntree = 16;
    QSaveFile icone(fichier);
    if (!icone.open(QIODevice::WriteOnly))
        return false;
    QDataStream flux(&icone);
    flux.setByteOrder(QDataStream::LittleEndian);
    flux << quint16(0) << quint16(1) << quint16(images.size());
    quint32 place = tailleEntete + tailleEntree * quint32(images.size());
    for (qsizetype i = 0; i < images.size(); ++i) {
        flux << quint8(tailles[i]) << quint8(tailles[i]) << quint8(0) << quint8(0) << quint16(1) << quint16(32)
             << quint32(images[i].size()) << place;
        place += quint32(images[i].size());
    }
    for (const QByteArray &image : images)
        flux.writeRawData(image.constData(), int(image.size()));
    return flux.status() == QDataStream::Ok && icone.commit();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "creeicone <dessin.svg> <icone.ico>\n");
        return EXIT_FAILURE;
    }
    QSvgRenderer dessin(arguments[1]);
    if (!dessin.isValid()) {
        std::fprintf(stderr, "creeicone : %s n'est pas un dessin SVG\n", qUtf8Printable(arguments[1]));
        return EXIT_FAILURE;
    }
    QList<QByteArray> images;
    for (const int taille : tailles)
        images.append(enPng(dessin, taille));
    if (images.contains(QByteArray()) || !ecrit(arguments[2], images)) {
        std::fprintf(stderr, "creeicone : %s ne peut pas être écrit\n", qUtf8Printable(arguments[2]));
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
