-- teller.vhdl - Practicum Digitale techniek, opdracht 3
--
-- BCD-teller van één decade (0 t/m 9) met asynchrone reset, synchroon laden,
-- vrijgave en overdracht. Door de overdracht van de ene decade aan te sluiten
-- op de vrijgave van de volgende ontstaat een teller met meer cijfers.
--
-- De ingang reset_n heeft op het bord een pull-up van 10 kΩ en is actief laag.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity teller is
  port (
    klok       : in  std_logic;
    reset_n    : in  std_logic;                     -- asynchroon, actief laag
    laad       : in  std_logic;                     -- gaat vóór vrijgave
    vrijgave   : in  std_logic;
    waarde_in  : in  std_logic_vector(3 downto 0);
    waarde_uit : out std_logic_vector(3 downto 0);
    overdracht : out std_logic
  );
end entity teller;

architecture gedrag of teller is

  -- Declareer hier het signaal stand (unsigned, vier bits, beginwaarde nul) en
  -- de constante hoogste_stand.
  -- //**** Student Begin ****//
  constant hoogste_stand : unsigned(3 downto 0) := to_unsigned(9, 4);
  signal   stand         : unsigned(3 downto 0) := (others => '0');
  -- //**** Student Eind ****//

begin

  -- Het register met de telstand. Een waarde boven de negen is geen geldig
  -- BCD-cijfer; zo'n waarde wordt bij het laden vervangen door nul.
  register_proces : process (klok, reset_n) is
  begin
    if reset_n = '0' then
      stand <= (others => '0');
    elsif rising_edge(klok) then
      -- //**** Student Begin ****//
      if laad = '1' then
        if unsigned(waarde_in) > hoogste_stand then
          stand <= (others => '0');
        else
          stand <= unsigned(waarde_in);
        end if;
      elsif vrijgave = '1' then
        if stand = hoogste_stand then
          stand <= (others => '0');
        else
          stand <= stand + 1;
        end if;
      end if;
      -- //**** Student Eind ****//
    end if;
  end process register_proces;

  waarde_uit <= std_logic_vector(stand);

  -- De overdracht is combinatorisch: hoog zolang de teller op negen staat én
  -- de vrijgave hoog is.
  -- //**** Student Begin ****//
  overdracht <= '1' when stand = hoogste_stand and vrijgave = '1' else '0';
  -- //**** Student Eind ****//

end architecture gedrag;
