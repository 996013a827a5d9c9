#pragma once

// Wie een keuze maakte: de gebruiker of het programma. De toolkit zegt het niet; het systeem weet het wel.

class wxRadioBox;

/// Of er op dit moment een klik op een knop van een keuzerondje afgehandeld wordt, met de muis, een toets of
/// een schermlezer. Een gebeurtenis die het programma zelf stuurt, is er geen.
bool isKlik(const wxRadioBox& rondje);
