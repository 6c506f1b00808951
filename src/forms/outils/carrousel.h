#pragma once

#include <QtGlobal>

#include <vector>

/// What the public view can show.
enum class GenrePage { Tirage, Attendues, Resultats, Classement, Horloge };
inline constexpr int genresDePage = 5;

/// One page of a kind.
struct Feuillet
{
    bool operator==(const Feuillet &) const = default;

    GenrePage genre = GenrePage::Horloge;
    int numero = 0; ///< From 0.
};

/// Pages that turn by themselves. Times are in milliseconds.
class Carrousel
{
public:
    /// The pages are now \p feuillets, at least one, kind after kind. The one that is shown stays; where it is gone the
    /// last of its kind follows, or the next kind.
    void prend(std::vector<Feuillet> feuillets);
    /// Gives each page \p duree, above 0.
    void regle(qint64 duree) { m_duree = duree; }
    /// So much time has gone by; true when another page stands there.
    bool avance(qint64 ecoule);
    /// Turns to the next page, which has its whole time.
    void suivante();
    /// The page in hand stays, and goes on for the time that it has left.
    void pause(bool tenue) { m_pause = tenue; }
    bool enPause() const { return m_pause; }

    const Feuillet &feuillet() const { return m_feuillets[m_place]; }
    /// Pages of the kind that is shown.
    int pagesDuGenre() const;
    /// Part of its time that the page has been shown, from 0 to 1.
    double part() const { return double(m_montre) / double(m_duree); }

private:
    std::vector<Feuillet> m_feuillets{{GenrePage::Tirage, 0}}; // the first that is taken is shown first
    std::size_t m_place = 0;
    qint64 m_duree = 10000;
    qint64 m_montre = 0;
    bool m_pause = false;
};
