/*
 * matrix.h - Practicum Objectgeoriënteerd programmeren, opdracht 2
 *
 * De klasse Matrix bevat een rechthoekig veld van getallen. We gebruiken haar
 * om de knooppuntsvergelijkingen van een weerstandsnetwerk op te lossen
 * (geleidingen in 1/Ω, stromen in A, spanningen in V).
 */
#ifndef MATRIX_H
#define MATRIX_H

#include <cstddef>
#include <iosfwd>
#include <vector>

class Matrix
{
public:
    /// Maakt een matrix waarin elk element de beginwaarde heeft.
    /// Gooit std::invalid_argument als één van de afmetingen nul is.
    Matrix(std::size_t aantalRijen, std::size_t aantalKolommen, double beginwaarde = 0.0);

    /// Maakt een vierkante matrix met enen op de hoofddiagonaal.
    static Matrix eenheidsmatrix(std::size_t orde);

    //**** Student Begin ****//
    std::size_t rijen() const { return aantalRijen_; }
    std::size_t kolommen() const { return aantalKolommen_; }
    bool isVierkant() const { return aantalRijen_ == aantalKolommen_; }
    //**** Student Eind ****//

    /// Geeft toegang tot één element; rij en kolom tellen vanaf nul.
    /// Gooit std::out_of_range als het element niet bestaat.
    double &element(std::size_t rij, std::size_t kolom);
    double element(std::size_t rij, std::size_t kolom) const;

    // Declareer hier de operatoren +=, *= (met een getal) en ==.
    //**** Student Begin ****//
    Matrix &operator+=(const Matrix &rechts);
    Matrix &operator*=(double factor);
    bool operator==(const Matrix &rechts) const;
    //**** Student Eind ****//

    /// Geeft de getransponeerde: rijen en kolommen zijn verwisseld.
    Matrix getransponeerde() const;

    /// Berekent de determinant met vegen (Gauss).
    /// Gooit std::domain_error als de matrix niet vierkant is.
    double determinant() const;

private:
    std::size_t index(std::size_t rij, std::size_t kolom) const;

    // Declareer hier, in deze volgorde, de datavelden aantalRijen_,
    // aantalKolommen_ en elementen_. Gebruik geen new en delete.
    //**** Student Begin ****//
    std::size_t aantalRijen_;
    std::size_t aantalKolommen_;
    std::vector<double> elementen_; // rij na rij achter elkaar
    //**** Student Eind ****//
};

Matrix operator+(Matrix links, const Matrix &rechts);
Matrix operator*(const Matrix &links, const Matrix &rechts);
std::ostream &operator<<(std::ostream &uit, const Matrix &matrix);

#endif // MATRIX_H
