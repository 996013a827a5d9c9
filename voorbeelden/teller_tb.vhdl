-- teller_tb.vhdl - Practicum Digitale techniek, opdracht 3
--
-- Testbank voor de BCD-teller. Twee decaden staan in cascade, zodat ook de
-- overdracht naar het tiental wordt beproefd. De simulatie stopt vanzelf.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity teller_tb is
end entity teller_tb;

architecture test of teller_tb is

  constant periode : time := 20 ns; -- 50 MHz, zoals het kristal op het bord

  signal klok          : std_logic := '0';
  signal reset_n       : std_logic := '0';
  signal laad          : std_logic := '0';
  signal vrijgave      : std_logic := '0';
  signal laad_waarde   : std_logic_vector(7 downto 0) := (others => '0');
  signal eenheden      : std_logic_vector(3 downto 0);
  signal tientallen    : std_logic_vector(3 downto 0);
  signal overdracht_1  : std_logic;
  signal overdracht_10 : std_logic;
  signal klaar         : boolean := false;

  -- Maakt van twee BCD-cijfers één geheel getal.
  function naar_getal (tiental, eenheid : std_logic_vector(3 downto 0)) return natural is
  begin
    return 10 * to_integer(unsigned(tiental)) + to_integer(unsigned(eenheid));
  end function naar_getal;

begin

  -- De klok stopt als de test klaar is; dan eindigt ook de simulatie.
  klok <= not klok after periode / 2 when not klaar else '0';

  decade_eenheden : entity work.teller
    port map (
      klok       => klok,
      reset_n    => reset_n,
      laad       => laad,
      vrijgave   => vrijgave,
      waarde_in  => laad_waarde(3 downto 0),
      waarde_uit => eenheden,
      overdracht => overdracht_1
    );

  -- Sluit hier de decade voor de tientallen aan.
  -- //**** Student Begin ****//
  decade_tientallen : entity work.teller
    port map (
      klok       => klok,
      reset_n    => reset_n,
      laad       => laad,
      vrijgave   => overdracht_1,
      waarde_in  => laad_waarde(7 downto 4),
      waarde_uit => tientallen,
      overdracht => overdracht_10
    );
  -- //**** Student Eind ****//

  stimuli : process is

    -- Wacht op de klokflank en daarna tot de neergaande flank: daar zijn de
    -- uitgangen stabiel en mogen de ingangen veranderen.
    procedure klokslag is
    begin
      wait until rising_edge(klok);
      wait until falling_edge(klok);
    end procedure klokslag;

    procedure verwacht (getal : in natural; omschrijving : in string) is
    begin
      assert naar_getal(tientallen, eenheden) = getal
        report omschrijving & ": verwacht " & integer'image(getal) & ", gelezen "
               & integer'image(naar_getal(tientallen, eenheden))
        severity error;
    end procedure verwacht;

  begin

    -- Test 1: de asynchrone reset zet beide decaden op nul.
    reset_n <= '0';
    wait for periode;
    verwacht(0, "na reset");
    wait until falling_edge(klok);
    reset_n <= '1';

    -- Test 2: zonder vrijgave blijft de teller staan.
    klokslag;
    klokslag;
    verwacht(0, "zonder vrijgave");

    -- Test 3: tel van 0 tot en met 99 en controleer de overdracht.
    -- //**** Student Begin ****//
    vrijgave <= '1';
    for getal in 1 to 99 loop
      klokslag;
      verwacht(getal, "tellen");
      if getal mod 10 = 9 then
        assert overdracht_1 = '1' report "overdracht moet hoog zijn" severity error;
      else
        assert overdracht_1 = '0' report "overdracht moet laag zijn" severity error;
      end if;
    end loop;
    assert overdracht_10 = '1' report "overdracht bij 99 ontbreekt" severity error;
    klokslag;
    verwacht(0, "omslaan na 99");
    assert overdracht_10 = '0' report "overdracht na omslaan nog hoog" severity error;
    -- //**** Student Eind ****//

    -- Test 4: laden gaat vóór tellen, daarna telt de teller verder.
    -- //**** Student Begin ****//
    laad_waarde <= x"38";
    laad        <= '1';
    klokslag;
    verwacht(38, "laden met vrijgave hoog");
    laad <= '0';
    klokslag;
    klokslag;
    verwacht(40, "tellen na laden");
    -- //**** Student Eind ****//

    -- Test 5: een ongeldig BCD-cijfer wordt als nul geladen.
    vrijgave    <= '0';
    laad_waarde <= x"5C";
    laad        <= '1';
    klokslag;
    laad <= '0';
    verwacht(50, "laden van een ongeldig cijfer");

    -- Test 6: zonder vrijgave is er ook op negen geen overdracht.
    laad_waarde <= x"99";
    laad        <= '1';
    klokslag;
    laad <= '0';
    verwacht(99, "laden van 99");
    assert overdracht_1 = '0' and overdracht_10 = '0'
      report "overdracht zonder vrijgave" severity error;

    -- Test 7: de reset werkt ook zonder klokflank.
    reset_n <= '0';
    wait for periode / 10;
    verwacht(0, "asynchrone reset");

    report "testbank doorlopen" severity note;
    klaar <= true;
    wait;

  end process stimuli;

end architecture test;
