/*
 * stapel.h - een stapel van hoogstens STAPEL_GROOTTE getallen
 */
#ifndef STAPEL_H
#define STAPEL_H

#include <stdbool.h>
#include <stddef.h>

#define STAPEL_GROOTTE 16U

typedef struct {
    int getallen[STAPEL_GROOTTE];
    size_t aantal;
} Stapel;

/* Maakt de stapel leeg. */
void stapelInit(Stapel *stapel);

bool stapelIsLeeg(const Stapel *stapel);

/* Legt een getal bovenop; geeft false terug als er geen plaats meer is. */
bool stapelLegOp(Stapel *stapel, int getal);

/* Pakt het bovenste getal; geeft false terug als er geen is, *getal verandert dan niet. */
bool stapelPak(Stapel *stapel, int *getal);

#endif
