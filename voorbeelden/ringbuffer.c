/*
 * ringbuffer.c - Practicum Programmeren in C, opdracht 4
 *
 * Een ringbuffer bewaart de laatste meetwaarden van een A/D-omzetter. De
 * interruptroutine schrijft aan de ene kant, het hoofdprogramma leest aan de
 * andere kant. Er is dus één schrijver en één lezer. In deze opdracht roepen we
 * beide kanten nog vanuit main aan; interrupts komen in opdracht 5 aan bod.
 *
 * Meetopstelling: een spanningsdeler van 10 kΩ en 4,7 kΩ aan een 10-bits
 * omzetter met een referentiespanning van 5 V. Eén stap is dus circa 4,9 mV.
 */
#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

#define BUFFER_GROOTTE 8U      /* aantal plaatsen in de buffer */
#define REFERENTIE_MV 5000UL   /* referentiespanning in mV */
#define ADC_STAPPEN 1024UL     /* 10 bits */

typedef struct {
    uint16_t gegevens[BUFFER_GROOTTE];
    size_t schrijfIndex; /* hier komt de volgende waarde */
    size_t leesIndex;    /* hier staat de oudste waarde */
    size_t aantal;       /* aantal waarden in de buffer */
} Ringbuffer;

/* Maakt de buffer leeg. */
static void bufferInit(Ringbuffer *buffer)
{
    assert(buffer != NULL);
    buffer->schrijfIndex = 0;
    buffer->leesIndex = 0;
    buffer->aantal = 0;
}

static bool bufferIsLeeg(const Ringbuffer *buffer)
{
    return buffer->aantal == 0;
}

static bool bufferIsVol(const Ringbuffer *buffer)
{
    //**** Student Begin ****//
    return buffer->aantal == BUFFER_GROOTTE;
    //**** Student Eind ****//
}

/*
 * Zet een waarde achteraan in de buffer.
 * Geeft false terug als de buffer vol is; de inhoud verandert dan niet.
 */
static bool bufferSchrijf(Ringbuffer *buffer, uint16_t waarde)
{
    assert(buffer != NULL);
    //**** Student Begin ****//
    if (bufferIsVol(buffer)) {
        return false;
    }
    buffer->gegevens[buffer->schrijfIndex] = waarde;
    /* Na de laatste plaats begint de index weer bij nul. */
    buffer->schrijfIndex = (buffer->schrijfIndex + 1U) % BUFFER_GROOTTE;
    buffer->aantal++;
    return true;
    //**** Student Eind ****//
}

/*
 * Haalt de oudste waarde uit de buffer.
 * Geeft false terug als de buffer leeg is; *waarde verandert dan niet.
 */
static bool bufferLees(Ringbuffer *buffer, uint16_t *waarde)
{
    assert(buffer != NULL);
    assert(waarde != NULL);
    //**** Student Begin ****//
    if (bufferIsLeeg(buffer)) {
        return false;
    }
    *waarde = buffer->gegevens[buffer->leesIndex];
    buffer->leesIndex = (buffer->leesIndex + 1U) % BUFFER_GROOTTE;
    buffer->aantal--;
    return true;
    //**** Student Eind ****//
}

/* Berekent het gemiddelde zonder de buffer te veranderen; 0 als hij leeg is. */
static uint16_t bufferGemiddelde(const Ringbuffer *buffer)
{
    uint32_t som = 0; /* ruim genoeg, ook bij een grotere buffer */

    if (bufferIsLeeg(buffer)) {
        return 0;
    }
    //**** Student Begin ****//
    for (size_t i = 0; i < buffer->aantal; i++) {
        som += buffer->gegevens[(buffer->leesIndex + i) % BUFFER_GROOTTE];
    }
    //**** Student Eind ****//
    return (uint16_t)(som / buffer->aantal);
}

/* Rekent een meetwaarde van de omzetter om naar millivolt. */
static unsigned long naarMillivolt(uint16_t meetwaarde)
{
    return meetwaarde * REFERENTIE_MV / ADC_STAPPEN;
}

static void toonBuffer(const Ringbuffer *buffer)
{
    printf("[%zu/%u]", buffer->aantal, BUFFER_GROOTTE);
    for (size_t i = 0; i < buffer->aantal; i++) {
        const size_t plaats = (buffer->leesIndex + i) % BUFFER_GROOTTE;
        printf(" %4u", (unsigned)buffer->gegevens[plaats]);
    }
    putchar('\n');
}

/* Meldt een mislukte controle en telt hem mee. */
static void controleer(bool goed, const char *omschrijving, int *fouten)
{
    printf("  %-42s %s\n", omschrijving, goed ? "goed" : "FOUT");
    if (!goed) {
        (*fouten)++;
    }
}

int main(void)
{
    Ringbuffer metingen;
    uint16_t waarde = 0;
    int fouten = 0;
    bool gelukt = true;

    bufferInit(&metingen);
    controleer(bufferIsLeeg(&metingen), "nieuwe buffer is leeg", &fouten);
    controleer(!bufferLees(&metingen, &waarde), "lezen uit lege buffer mislukt", &fouten);

    /* Vul de buffer helemaal: 100, 200, ..., 800. */
    for (uint16_t i = 1; i <= BUFFER_GROOTTE; i++) {
        gelukt = bufferSchrijf(&metingen, (uint16_t)(100U * i)) && gelukt;
    }
    toonBuffer(&metingen);
    controleer(gelukt && bufferIsVol(&metingen), "buffer is vol na acht waarden", &fouten);
    controleer(!bufferSchrijf(&metingen, 999), "schrijven in volle buffer mislukt", &fouten);
    controleer(bufferGemiddelde(&metingen) == 450, "gemiddelde is 450", &fouten);
    printf("  gemiddelde spanning: %lu mV\n", naarMillivolt(bufferGemiddelde(&metingen)));

    /* Lees er drie uit en schrijf er twee bij: de indexen gaan de hoek om. */
    //**** Student Begin ****//
    for (uint16_t i = 1; i <= 3; i++) {
        gelukt = bufferLees(&metingen, &waarde) && waarde == 100U * i && gelukt;
    }
    controleer(gelukt, "waarden komen er op volgorde uit", &fouten);
    gelukt = bufferSchrijf(&metingen, 900) && bufferSchrijf(&metingen, 1000);
    controleer(gelukt, "vrijgekomen plaatsen zijn weer bruikbaar", &fouten);
    //**** Student Eind ****//
    toonBuffer(&metingen);
    controleer(metingen.aantal == 7, "er staan zeven waarden in de buffer", &fouten);
    controleer(bufferGemiddelde(&metingen) == 700, "gemiddelde is 700", &fouten);

    printf("%d fout(en)\n", fouten);
    return fouten == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
