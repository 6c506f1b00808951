#pragma once

#include <QString>

#include <array>

/// Texts of the active language by number, 0 to 180. A number without a text is empty.
class TableMessages
{
public:
    static constexpr int nombre = 181;

    /// Text \p numero. Throws std::out_of_range outside the table.
    const QString &operator()(int numero) const;
    /// Throws std::out_of_range outside the table.
    void pose(int numero, const QString &texte);
    void efface() { m_textes.fill(QString()); }

private:
    std::array<QString, nombre> m_textes;
};
