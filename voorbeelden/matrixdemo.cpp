/*
 * matrixdemo.cpp - Practicum Objectgeoriënteerd programmeren, opdracht 2
 *
 * Gebruikt de klasse Matrix om twee knooppuntsspanningen te berekenen met de
 * regel van Cramer. Dit bestand is compleet: je hoeft hier niets te wijzigen.
 *
 *   bron 10 mA --+--- R2 = 1 kΩ ---+
 *                |                 |
 *             R1 = 2 kΩ         R3 = 3 kΩ
 *                |                 |
 *               gnd               gnd
 */
#include "matrix.h"

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace {

int aantalFouten = 0;

void controleer(bool goed, const char *omschrijving)
{
    std::cout << (goed ? "goed: " : "FOUT: ") << omschrijving << '\n';
    if (!goed) {
        ++aantalFouten;
    }
}

bool bijnaGelijk(double links, double rechts)
{
    return std::abs(links - rechts) < 1e-9;
}

// Vervangt één kolom van de matrix door de kolomvector (regel van Cramer).
Matrix metKolom(Matrix matrix, std::size_t kolom, const Matrix &vector)
{
    for (std::size_t rij = 0; rij < matrix.rijen(); ++rij) {
        matrix.element(rij, kolom) = vector.element(rij, 0);
    }
    return matrix;
}

void testBewerkingen()
{
    Matrix a{2, 3};
    for (std::size_t rij = 0; rij < a.rijen(); ++rij) {
        for (std::size_t kolom = 0; kolom < a.kolommen(); ++kolom) {
            a.element(rij, kolom) = static_cast<double>(10 * rij + kolom);
        }
    }
    std::cout << "A =\n" << a << "A getransponeerd =\n" << a.getransponeerde();

    Matrix dubbel{a};
    dubbel *= 2.0;
    controleer(a + a == dubbel, "A + A is gelijk aan 2 A");
    controleer(a * Matrix::eenheidsmatrix(3) == a, "A maal de eenheidsmatrix is A");
    controleer(a.getransponeerde().getransponeerde() == a, "twee keer transponeren geeft A");
    controleer(!a.isVierkant(), "A is niet vierkant");
}

void testFoutafhandeling()
{
    const Matrix a{2, 3};
    try {
        (void)(a * a);
        controleer(false, "vermenigvuldigen met verkeerde afmetingen");
    } catch (const std::invalid_argument &fout) {
        controleer(true, fout.what());
    }
    try {
        (void)a.element(2, 0);
        controleer(false, "element buiten de matrix");
    } catch (const std::out_of_range &fout) {
        controleer(true, fout.what());
    }
}

void testNetwerk()
{
    // We rekenen in mA en kΩ, de geleidingen staan dus in 1/kΩ.
    const double g1 = 1.0 / 2.0;
    const double g2 = 1.0 / 1.0;
    const double g3 = 1.0 / 3.0;

    Matrix geleiding{2, 2};
    geleiding.element(0, 0) = g1 + g2;
    geleiding.element(0, 1) = -g2;
    geleiding.element(1, 0) = -g2;
    geleiding.element(1, 1) = g2 + g3;

    Matrix stroom{2, 1};
    stroom.element(0, 0) = 10.0;

    const double noemer = geleiding.determinant();
    Matrix spanning{2, 1};
    for (std::size_t knoop = 0; knoop < spanning.rijen(); ++knoop) {
        spanning.element(knoop, 0) = metKolom(geleiding, knoop, stroom).determinant() / noemer;
    }
    std::cout << "Knooppuntsspanningen in V =\n" << spanning;

    const Matrix terug = geleiding * spanning;
    controleer(bijnaGelijk(terug.element(0, 0), 10.0), "de stroom in knoop 1 is 10 mA");
    controleer(bijnaGelijk(terug.element(1, 0), 0.0), "de stroom in knoop 2 is 0 mA");
    controleer(bijnaGelijk(spanning.element(0, 0), 40.0 / 3.0), "U1 is 13,33 V");
    controleer(bijnaGelijk(spanning.element(1, 0), 10.0), "U2 is 10 V");
}

} // namespace

int main()
{
    try {
        testBewerkingen();
        testFoutafhandeling();
        testNetwerk();
    } catch (const std::exception &fout) {
        std::cerr << "Onverwachte exceptie: " << fout.what() << '\n';
        return EXIT_FAILURE;
    }
    std::cout << aantalFouten << " fout(en)\n";
    return aantalFouten == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
