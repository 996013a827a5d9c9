/*
 * stapel.c - opdracht 1: maak de stapel af
 */
#include "stapel.h"

void stapelInit(Stapel *stapel)
{
    stapel->aantal = 0;
}

bool stapelIsLeeg(const Stapel *stapel)
{
    //**** Student Begin ****//
    //GEEF (void)stapel; /* haal deze regel weg */
    //GEEF return true;  /* vervang dit door uw eigen code */
    return stapel->aantal == 0;
    //**** Student Eind ****//
}

bool stapelLegOp(Stapel *stapel, int getal)
{
    //**** Student Begin ****//
    //GEEF (void)stapel;
    //GEEF (void)getal;
    //GEEF return false;
    if (stapel->aantal == STAPEL_GROOTTE) {
        return false;
    }
    stapel->getallen[stapel->aantal] = getal;
    stapel->aantal++;
    return true;
    //**** Student Eind ****//
}

bool stapelPak(Stapel *stapel, int *getal)
{
    //**** Student Begin ****//
    //GEEF (void)stapel;
    //GEEF (void)getal;
    //GEEF return false;
    if (stapelIsLeeg(stapel)) {
        return false;
    }
    stapel->aantal--;
    *getal = stapel->getallen[stapel->aantal];
    return true;
    //**** Student Eind ****//
}
