#pragma once

// Wie een keuze maakte: de gebruiker of het programma. De toolkit zegt het niet; GTK weet het wel.

class wxRadioBox;

/// Of GTK op dit moment een klik op de gekozen knop van een keuzerondje afhandelt, met de muis, een toets of
/// een schermlezer. Een gebeurtenis die het programma zelf stuurt, is er geen.
bool isKlik(const wxRadioBox& rondje);
