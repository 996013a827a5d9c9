/*
 * matrix.cpp - Practicum Objectgeoriënteerd programmeren, opdracht 2
 *
 * Implementatie van de klasse Matrix. Let op de foutafhandeling: een functie
 * die haar werk niet kan doen, gooit een exceptie en verandert niets.
 */
#include "matrix.h"

#include <cmath>
#include <iomanip>
#include <ostream>
#include <stdexcept>
#include <utility>

Matrix::Matrix(std::size_t aantalRijen, std::size_t aantalKolommen, double beginwaarde)
    : aantalRijen_{aantalRijen}
    , aantalKolommen_{aantalKolommen}
    , elementen_(aantalRijen * aantalKolommen, beginwaarde)
{
    if (aantalRijen == 0 || aantalKolommen == 0) {
        throw std::invalid_argument{"een matrix heeft minstens één rij en één kolom"};
    }
}

Matrix Matrix::eenheidsmatrix(std::size_t orde)
{
    Matrix resultaat{orde, orde};
    //**** Student Begin ****//
    for (std::size_t i = 0; i < orde; ++i) {
        resultaat.element(i, i) = 1.0;
    }
    //**** Student Eind ****//
    return resultaat;
}

// Rekent rij en kolom om naar de plaats in de vector en bewaakt de grenzen.
std::size_t Matrix::index(std::size_t rij, std::size_t kolom) const
{
    //**** Student Begin ****//
    if (rij >= aantalRijen_ || kolom >= aantalKolommen_) {
        throw std::out_of_range{"dit element ligt buiten de matrix"};
    }
    return rij * aantalKolommen_ + kolom;
    //**** Student Eind ****//
}

double &Matrix::element(std::size_t rij, std::size_t kolom)
{
    return elementen_[index(rij, kolom)];
}

double Matrix::element(std::size_t rij, std::size_t kolom) const
{
    return elementen_[index(rij, kolom)];
}

//**** Student Begin ****//
Matrix &Matrix::operator+=(const Matrix &rechts)
{
    if (aantalRijen_ != rechts.aantalRijen_ || aantalKolommen_ != rechts.aantalKolommen_) {
        throw std::invalid_argument{"optellen kan alleen bij gelijke afmetingen"};
    }
    for (std::size_t i = 0; i < elementen_.size(); ++i) {
        elementen_[i] += rechts.elementen_[i];
    }
    return *this;
}

Matrix &Matrix::operator*=(double factor)
{
    for (double &waarde : elementen_) {
        waarde *= factor;
    }
    return *this;
}

bool Matrix::operator==(const Matrix &rechts) const
{
    return aantalRijen_ == rechts.aantalRijen_ && aantalKolommen_ == rechts.aantalKolommen_
           && elementen_ == rechts.elementen_;
}
//**** Student Eind ****//

Matrix Matrix::getransponeerde() const
{
    Matrix resultaat{aantalKolommen_, aantalRijen_};
    for (std::size_t rij = 0; rij < aantalRijen_; ++rij) {
        for (std::size_t kolom = 0; kolom < aantalKolommen_; ++kolom) {
            resultaat.element(kolom, rij) = element(rij, kolom);
        }
    }
    return resultaat;
}

double Matrix::determinant() const
{
    if (!isVierkant()) {
        throw std::domain_error{"alleen een vierkante matrix heeft een determinant"};
    }

    Matrix werk{*this}; // vegen verandert de matrix, dus werken we op een kopie
    double resultaat = 1.0;

    for (std::size_t spil = 0; spil < werk.rijen(); ++spil) {
        // Zoek in deze kolom het element met de grootste absolute waarde.
        std::size_t besteRij = spil;
        for (std::size_t rij = spil + 1; rij < werk.rijen(); ++rij) {
            if (std::abs(werk.element(rij, spil)) > std::abs(werk.element(besteRij, spil))) {
                besteRij = rij;
            }
        }
        if (werk.element(besteRij, spil) == 0.0) {
            return 0.0; // singulier: er is geen unieke oplossing
        }
        // Verwissel zo nodig de rijen; elke verwisseling keert het teken om.
        if (besteRij != spil) {
            for (std::size_t kolom = 0; kolom < werk.kolommen(); ++kolom) {
                std::swap(werk.element(spil, kolom), werk.element(besteRij, kolom));
            }
            resultaat = -resultaat;
        }
        // Veeg de elementen onder de spil tot nul en werk het resultaat bij.
        //**** Student Begin ****//
        for (std::size_t rij = spil + 1; rij < werk.rijen(); ++rij) {
            const double factor = werk.element(rij, spil) / werk.element(spil, spil);
            for (std::size_t kolom = spil; kolom < werk.kolommen(); ++kolom) {
                werk.element(rij, kolom) -= factor * werk.element(spil, kolom);
            }
        }
        resultaat *= werk.element(spil, spil);
        //**** Student Eind ****//
    }
    return resultaat;
}

Matrix operator+(Matrix links, const Matrix &rechts)
{
    links += rechts;
    return links;
}

Matrix operator*(const Matrix &links, const Matrix &rechts)
{
    if (links.kolommen() != rechts.rijen()) {
        throw std::invalid_argument{"aantal kolommen links moet gelijk zijn aan aantal rijen rechts"};
    }
    Matrix product{links.rijen(), rechts.kolommen()};
    //**** Student Begin ****//
    for (std::size_t rij = 0; rij < product.rijen(); ++rij) {
        for (std::size_t kolom = 0; kolom < product.kolommen(); ++kolom) {
            double som = 0.0;
            for (std::size_t k = 0; k < links.kolommen(); ++k) {
                som += links.element(rij, k) * rechts.element(k, kolom);
            }
            product.element(rij, kolom) = som;
        }
    }
    //**** Student Eind ****//
    return product;
}

std::ostream &operator<<(std::ostream &uit, const Matrix &matrix)
{
    for (std::size_t rij = 0; rij < matrix.rijen(); ++rij) {
        for (std::size_t kolom = 0; kolom < matrix.kolommen(); ++kolom) {
            uit << std::setw(9) << matrix.element(rij, kolom);
        }
        uit << '\n';
    }
    return uit;
}
