// Makes a page for a web browser out of a Markdown text: an organiser has a browser, and seldom anything that shows
// Markdown with its pictures.

#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextDocument>

#include <cstdio>
#include <functional>

namespace {

const QString style = QStringLiteral(
    "@page { size: A4; margin: 15mm; }\n"
    "body { font: 12pt/1.45 sans-serif; color: #16242f; max-width: 60em; margin: 1em auto; padding: 0 1em; }\n"
    "h1, h2, h3 { color: #1f5a8c; page-break-after: avoid; }\n"
    "h2 { margin-top: 2em; border-top: 1px solid #8896a3; padding-top: 1em; }\n"
    "table { border-collapse: collapse; margin: 1em 0; }\n"
    "td, th { border: 1px solid #8896a3; padding: 0.3em 0.6em; text-align: left; vertical-align: top; }\n"
    "td p, th p { margin: 0 !important; }\n"
    "img { max-width: 100%; vertical-align: top; }\n"
    "@media print { body { font-size: 10.5pt; } h2 { page-break-before: always; border: none; margin: 0; } "
    "img { max-height: 105mm; } }\n");

/// Name under which links of the text know a heading: its words in small letters, joined by hyphens.
QString ancre(QString titre)
{
    titre.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    titre.remove(QRegularExpression(QStringLiteral("[^\\p{L}\\p{N} -]")));
    return titre.trimmed().toLower().replace(u' ', u'-');
}

/// \p html with each match of \p forme replaced by what \p change makes of it.
QString remplace(const QString &html, const QRegularExpression &forme,
                 const std::function<QString(const QRegularExpressionMatch &)> &change)
{
    QString neuf;
    qsizetype fin = 0;
    for (auto trouves = forme.globalMatch(html); trouves.hasNext();) {
        const QRegularExpressionMatch trouve = trouves.next();
        neuf += html.mid(fin, trouve.capturedStart() - fin) + change(trouve);
        fin = trouve.capturedEnd();
    }
    return neuf + html.mid(fin);
}

/// The look is that of the sheet above; bold, slanted and fixed letters stand on spans and stay.
QString corps(const QString &markdown)
{
    static const QRegularExpression balise(QStringLiteral("<(body|h\\d|table|tr|td|th|ul|ol|li|img)\\b[^>]*>"));
    static const QRegularExpression presentation(
        QStringLiteral("\\s(style|border|cellspacing|cellpadding|width|height|align|type)=\"[^\"]*\""));
    static const QRegularExpression titre(QStringLiteral("<(h\\d)>(.*?)</\\1>"),
                                          QRegularExpression::DotMatchesEverythingOption);
    QTextDocument document;
    document.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    const QString html = document.toHtml();
    const QString sobre =
        remplace(html.mid(html.indexOf(QStringLiteral("<body"))), balise,
                 [](const QRegularExpressionMatch &trouve) { return trouve.captured().remove(presentation); });
    return remplace(sobre, titre, [](const QRegularExpressionMatch &trouve) {
        return QStringLiteral("<%1 id=\"%2\">%3</%1>")
            .arg(trouve.captured(1), ancre(trouve.captured(2)), trouve.captured(2));
    });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "creemanuel <texte.md> <page.html> <titre>\n");
        return 2;
    }
    QFile texte(arguments[1]);
    QSaveFile page(arguments[2]);
    if (!texte.open(QIODevice::ReadOnly) || !page.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "creemanuel : %s\n", qUtf8Printable(texte.errorString() + u' ' + page.errorString()));
        return 1;
    }
    const QString html = QStringLiteral("<!DOCTYPE html>\n<html lang=\"fr\">\n<head><meta charset=\"utf-8\"><title>%1"
                                        "</title>\n<style>\n%2</style></head>\n%3\n")
                             .arg(arguments[3], style, corps(QString::fromUtf8(texte.readAll())));
    const QByteArray octets = html.toUtf8();
    return page.write(octets) == octets.size() && page.commit() ? 0 : 1;
}
