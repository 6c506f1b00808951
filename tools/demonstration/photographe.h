#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

class QWidget;

namespace demonstration {

/// Takes the pictures of the day. Every picture has its name and its number in one catalogue, so that an earlier day's
/// pictures can be told from files that are somebody else's.
class Photographe
{
public:
    explicit Photographe(const QString &dossier)
        : m_dossier(dossier)
    {
    }

    /// Picture of the window of \p widget under \p nom of the catalogue; once a day.
    void prend(QStringView nom, QWidget &widget);
    /// Picture of the whole screen: the main window \p fond and the open windows at their places. Fails when one of
    /// \p formes is not among them.
    void prendBureau(QStringView nom, QWidget &fond, const QStringList &formes);

    /// File names of all pictures that a day can leave.
    static QStringList fichiers();

private:
    void garde(QStringView nom, const QImage &image);

    QString m_dossier;
    QStringList m_prises;
};

} // namespace demonstration
