/*
 * haakjes.c - opdracht 2: gebruik de stapel om haakjes na te kijken
 *
 * Vertaal met ../stapel/stapel.c erbij. Het programma controleert zichzelf en eindigt met "0 fout(en)".
 */
#include "stapel.h"

#include <stdio.h>

//**** Student Begin ****//
static int sluitHaakje(int open)
{
    switch (open) {
        case '(':
            return ')';
        case '[':
            return ']';
        case '{':
            return '}';
        default:
            return 0;
    }
}
//GEEF /* Hier is plaats voor een hulpfunctie. */
//**** Student Eind ****//

/* Of bij elk haakje het goede sluithaakje staat. */
static bool kloppenHaakjes(const char *tekst)
{
    //**** Student Begin ****//
    //GEEF (void)tekst;
    //GEEF return false;
    Stapel stapel;

    stapelInit(&stapel);
    for (; *tekst != '\0'; tekst++) {
        if (sluitHaakje(*tekst) != 0) {
            if (!stapelLegOp(&stapel, sluitHaakje(*tekst))) {
                return false;
            }
        } else if (*tekst == ')' || *tekst == ']' || *tekst == '}') {
            int verwacht = 0;

            if (!stapelPak(&stapel, &verwacht) || verwacht != *tekst) {
                return false;
            }
        }
    }
    return stapelIsLeeg(&stapel);
    //**** Student Eind ****//
}

int main(void)
{
    static const struct {
        const char *tekst;
        bool klopt;
    } proeven[] = {
        {"", true},
        {"f(a[1], {2})", true},
        {"(()", false},
        {"())", false},
        {"([)]", false},
        {"((((((((((((((((()))))))))))))))))", false}, /* past niet op de stapel */
    };
    int fouten = 0;

    for (size_t i = 0; i < sizeof proeven / sizeof proeven[0]; i++) {
        if (kloppenHaakjes(proeven[i].tekst) != proeven[i].klopt) {
            printf("fout bij \"%s\"\n", proeven[i].tekst);
            fouten++;
        }
    }
    printf("%d fout(en)\n", fouten);
    return fouten == 0 ? 0 : 1;
}
