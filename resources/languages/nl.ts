<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Wardlock</name>
    <message>
        <source>The database is damaged. Some of its events can no longer be read.</source>
        <translation>De database is beschadigd. Een deel van de registraties is niet meer leesbaar.</translation>
    </message>
    <message>
        <source>Please restore a backup. Until then, no reader is erased.</source>
        <translation>Zet een reservekopie terug. Tot dan wordt geen lezer gewist.</translation>
    </message>
    <message>
        <source>Another program is using it.</source>
        <translation>Een ander programma gebruikt de database.</translation>
    </message>
    <message>
        <source>It is in use by %0:s (process %1:s).</source>
        <translation>De database is in gebruik bij %0:s (proces %1:s).</translation>
    </message>
    <message>
        <source>It is in use on computer %2:s by %0:s (process %1:s).</source>
        <translation>De database is op computer %2:s in gebruik bij %0:s (proces %1:s).</translation>
    </message>
    <message>
        <source>The touches are stored, but the disk reported an error. The reader was not erased.</source>
        <translation>De registraties zijn opgeslagen, maar de schijf meldde een fout. De lezer is niet gewist.</translation>
    </message>
    <message>
        <source>The disk or the network reported an error. Please check it and try again.</source>
        <translation>De schijf of het netwerk meldde een fout. Controleer dit en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The database is damaged. The reader was not erased.</source>
        <translation>De database is beschadigd. De lezer is niet gewist.</translation>
    </message>
    <message>
        <source>A name or description can have at most 100 characters.</source>
        <translation>Een naam of omschrijving mag hoogstens 100 tekens bevatten.</translation>
    </message>
    <message>
        <source>A password cannot contain line breaks or other control characters.</source>
        <translation>Een wachtwoord mag geen regeleinden of andere stuurtekens bevatten.</translation>
    </message>
    <message>
        <source>The report could not be created. See error.log for the reason.</source>
        <translation>Het rapport kon niet worden gemaakt. De reden staat in error.log.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Het bestand bestaat niet.</translation>
    </message>
    <message>
        <source>The folder %0:s does not exist. Please create it, or choose another folder in WARDLOCK_HOME.</source>
        <translation>De map %0:s bestaat niet. Maak deze aan of geef in WARDLOCK_HOME een andere map op.</translation>
    </message>
    <message>
        <source>You may not write to the folder %0:s. Please ask for permission, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Schrijfrechten voor de map %0:s ontbreken. Vraag deze rechten aan of geef in WARDLOCK_HOME een andere map op.</translation>
    </message>
    <message>
        <source>There is no database yet. Please start the station once to create it.</source>
        <translation>Er is nog geen database. Start het programma Wardlock één keer: dat maakt er een aan.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>De schijf is vol.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this file or its folder.</source>
        <translation>Schrijfrechten voor dit bestand of de map ontbreken.</translation>
    </message>
    <message>
        <source>Its password is different, or it is damaged. If it is damaged, please restore a backup.</source>
        <translation>Het bestand heeft een ander wachtwoord of is beschadigd. Zet bij beschadiging een reservekopie terug.</translation>
    </message>
    <message>
        <source>It is damaged. Please restore a backup.</source>
        <translation>Het bestand is beschadigd. Zet een reservekopie terug.</translation>
    </message>
    <message>
        <source>A journal next to the database did not belong to it. The database was opened without this journal.</source>
        <translation>Naast de database stond een journaalbestand dat er niet bij hoorde. De database is zonder dit bestand geopend.</translation>
    </message>
    <message>
        <source>It was renamed to:</source>
        <translation>De nieuwe naam is:</translation>
    </message>
    <message>
        <source>The User Name / Password are incorrect. Please try again.</source>
        <translation>De gebruiker of het wachtwoord is onjuist. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Could not open the com port.</source>
        <translation>De COM-poort kon niet worden geopend.</translation>
    </message>
    <message>
        <source>Check settings and try again.</source>
        <translation>Controleer de instellingen en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The master chooses the port under Tools, Com Options.</source>
        <translation>De beheerder kiest de poort onder Extra, COM-poort.</translation>
    </message>
    <message>
        <source>Is the docking station plugged in, and is this its device?</source>
        <translation>Is het dockingstation aangesloten en is dit het apparaat ervan?</translation>
    </message>
    <message>
        <source>Could not connect to the docking station.</source>
        <translation>Geen verbinding met het dockingstation.</translation>
    </message>
    <message>
        <source>Check hardware and settings and try again.</source>
        <translation>Controleer de apparatuur en de instellingen en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Working in Offline Mode</source>
        <translation>Werken zonder dockingstation</translation>
    </message>
    <message>
        <source>Docking Station : OK</source>
        <translation>Dockingstation: OK</translation>
    </message>
    <message>
        <source>Docking Station : Not Detected</source>
        <translation>Dockingstation: niet gevonden</translation>
    </message>
    <message>
        <source>%0:s is gone. Plug it in again.</source>
        <translation>%0:s is niet meer aangesloten. Sluit het apparaat weer aan.</translation>
    </message>
    <message>
        <source>Last download</source>
        <translation>Laatst uitgelezen</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>nog niets</translation>
    </message>
    <message>
        <source>Tours of the last 24 hours</source>
        <translation>Rondes van de laatste 24 uur</translation>
    </message>
    <message>
        <source>Click a tour, or press Enter, to open its report.</source>
        <translation>Klik op een ronde of druk op Enter om het rapport te openen.</translation>
    </message>
    <message>
        <source>No tour was due.</source>
        <translation>Er was geen ronde gepland.</translation>
    </message>
    <message>
        <source>Readers and tours are not set up yet. A master does this on the Setup page.</source>
        <translation>Lezers en rondes zijn nog niet vastgelegd. De beheerder doet dat op de pagina ‘Beheer’.</translation>
    </message>
    <message>
        <source>not downloaded or not walked</source>
        <translation>niet uitgelezen of niet gelopen</translation>
    </message>
    <message>
        <source>On time</source>
        <translation>Op tijd</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Te vroeg</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Te laat</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Gemist</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Eerste stappen</translation>
    </message>
    <message>
        <source>Define a site</source>
        <translation>Een object vastleggen</translation>
    </message>
    <message>
        <source>Add the buttons of the site</source>
        <translation>De chips van het object toevoegen</translation>
    </message>
    <message>
        <source>Add a reader</source>
        <translation>Een lezer toevoegen</translation>
    </message>
    <message>
        <source>Plan a tour</source>
        <translation>Een ronde plannen</translation>
    </message>
    <message>
        <source>done</source>
        <translation>gereed</translation>
    </message>
    <message>
        <source>The touches could not be stored. The reader was not erased.</source>
        <translation>De registraties konden niet worden opgeslagen. De lezer is niet gewist.</translation>
    </message>
    <message>
        <source>Touches stored: </source>
        <translation>Opgeslagen registraties: </translation>
    </message>
    <message>
        <source>The reader was taken out of the station. It was not erased.</source>
        <translation>De lezer is uit het dockingstation genomen en is niet gewist.</translation>
    </message>
    <message>
        <source>Another reader is in the station. It was not erased.</source>
        <translation>In het dockingstation zit een andere lezer. Deze is niet gewist.</translation>
    </message>
    <message>
        <source>The reader has been used since it was read. It was not erased.</source>
        <translation>De lezer is na het uitlezen nog gebruikt en is niet gewist.</translation>
    </message>
    <message>
        <source>The reader's memory continues after its end mark. The touches that were read are stored, but the reader was not erased.</source>
        <translation>In het geheugen van de lezer staan nog gegevens na de eindmarkering. De uitgelezen registraties zijn opgeslagen, maar de lezer is niet gewist.</translation>
    </message>
    <message>
        <source>The reader holds a different number of records than it reports. The touches that were read are stored, but the reader was not erased.</source>
        <translation>De lezer bevat een ander aantal records dan hij opgeeft. De uitgelezen registraties zijn opgeslagen, maar de lezer is niet gewist.</translation>
    </message>
    <message>
        <source>The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It was not set.</source>
        <translation>De klok van de lezer kan alleen op een datum van 1 januari 2000 tot en met 6 juni 2179 worden gezet. De klok is niet gelijkgezet.</translation>
    </message>
    <message>
        <source>Reader Memory NOT erased!</source>
        <translation>Geheugen van de lezer NIET gewist!</translation>
    </message>
    <message>
        <source>Reader Memory erased</source>
        <translation>Geheugen van de lezer gewist</translation>
    </message>
    <message>
        <source>Reader ID:</source>
        <translation>Lezer-ID:</translation>
    </message>
    <message>
        <source>KV-88 Wardlock Reports</source>
        <translation>KV-88 Wardlock Rapporten</translation>
    </message>
    <message>
        <source>%0:s - Version %1:s</source>
        <translation>%0:s - Versie %1:s</translation>
    </message>
    <message>
        <source>Download Failed</source>
        <translation>Uitlezen mislukt</translation>
    </message>
    <message>
        <source>Remove the cause, and then download the reader again.</source>
        <translation>Verhelp de oorzaak en lees de lezer daarna opnieuw uit.</translation>
    </message>
    <message>
        <source>All touches are still in the reader.</source>
        <translation>Alle registraties zitten nog in de lezer.</translation>
    </message>
    <message>
        <source>Download Successful</source>
        <translation>Uitlezen gelukt</translation>
    </message>
    <message>
        <source>Reports of the tours in this download</source>
        <translation>Rapporten van de uitgelezen rondes</translation>
    </message>
    <message>
        <source>More on the Reports page: %0:s</source>
        <translation>Meer op de pagina ‘Rapporten’: %0:s</translation>
    </message>
    <message>
        <source>Data Readings = </source>
        <translation>Registraties: </translation>
    </message>
    <message>
        <source>The Reader was empty</source>
        <translation>De lezer was leeg</translation>
    </message>
    <message>
        <source>Reader Clock update failed.  Please try again.</source>
        <translation>De klok van de lezer kon niet worden gelijkgezet. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The download itself is complete. The clock can be set with Reader Options in the Tools menu.</source>
        <translation>Het uitlezen zelf is voltooid. De klok kan worden gelijkgezet met ‘Lezer instellen’ in het menu Extra.</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the reader? </source>
        <translation>Weet u zeker dat u het geheugen van de lezer wilt wissen? </translation>
    </message>
    <message>
        <source>The reader that was downloaded last:</source>
        <translation>Laatst uitgelezen lezer:</translation>
    </message>
    <message>
        <source>Touches that have not been downloaded yet will be lost.</source>
        <translation>Registraties die nog niet zijn uitgelezen, gaan verloren.</translation>
    </message>
    <message>
        <source>Reader Erase Failed.  Try again?</source>
        <translation>De lezer kon niet worden gewist. Opnieuw proberen?</translation>
    </message>
    <message>
        <source>As long as the reader keeps its touches, each further download stores them again.</source>
        <translation>Zolang de lezer de registraties bewaart, worden ze bij elke keer uitlezen opnieuw opgeslagen.</translation>
    </message>
    <message>
        <source>Reader Erased</source>
        <translation>Lezer gewist</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
    <message>
        <source>Download Error</source>
        <translation>Fout bij het uitlezen</translation>
    </message>
    <message>
        <source>The names of the buttons could not be read from the database. See error.log for the reason.</source>
        <translation>De namen van de chips konden niet uit de database worden gelezen. De reden staat in error.log.</translation>
    </message>
    <message>
        <source>What the reader sent was not complete or not valid. Please try again.</source>
        <translation>De gegevens van de lezer waren onvolledig of ongeldig. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The connection to the docking station was lost. Check its cable and try again.</source>
        <translation>De verbinding met het dockingstation is verbroken. Controleer de kabel en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The docking station could not read the reader. Take it out, put it in again, and try once more.</source>
        <translation>Het dockingstation kon de lezer niet uitlezen. Neem de lezer eruit, plaats hem terug en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station so that it sits firmly.</source>
        <translation>Plaats de lezer stevig in het dockingstation.</translation>
    </message>
    <message>
        <source>The reader stopped answering. Leave it in the docking station until the download is complete, and try again.</source>
        <translation>De lezer antwoordt niet meer. Laat hem in het dockingstation tot het uitlezen is voltooid en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Downloading data from reader</source>
        <translation>De lezer wordt uitgelezen</translation>
    </message>
    <message>
        <source>Reader not detected. Check reader and try again.</source>
        <translation>Geen lezer gevonden. Controleer de lezer en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Download Completed</source>
        <translation>Uitlezen voltooid</translation>
    </message>
    <message>
        <source>Processing Data</source>
        <translation>Gegevens worden verwerkt</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>Gereed…</translation>
    </message>
    <message>
        <source>Opening COM port...</source>
        <translation>COM-poort wordt geopend…</translation>
    </message>
    <message>
        <source>Could Not Open Com </source>
        <translation>Niet te openen: COM</translation>
    </message>
    <message>
        <source>Please try another COM port or check that the COM port is not in use by another program.</source>
        <translation>Kies een andere COM-poort of controleer of een ander programma de COM-poort gebruikt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Looks for the docking station again</source>
        <translation>Zoekt opnieuw naar het dockingstation</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Checking Docking Station...</source>
        <translation>Dockingstation wordt gezocht…</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>geen apparaat</translation>
    </message>
    <message>
        <source>&amp;Open Report...</source>
        <translation>Rapport &amp;openen…</translation>
    </message>
    <message>
        <source>Open the dialog of the selected report</source>
        <translation>Het venster van het gekozen rapport openen</translation>
    </message>
    <message>
        <source>Report Name</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Descri&amp;ption</source>
        <translation>Omsch&amp;rijving</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Omschrijving</translation>
    </message>
    <message>
        <source>Tour / Exception Report</source>
        <translation>Ronde-/afwijkingenrapport</translation>
    </message>
    <message>
        <source>Patrol Schedule</source>
        <translation>Rondeschema</translation>
    </message>
    <message>
        <source>Lists the times and places for a tour</source>
        <translation>Tijden en plaatsen van een ronde</translation>
    </message>
    <message>
        <source>Patrol Schedule Report</source>
        <translation>Rondeschema</translation>
    </message>
    <message>
        <source>Select the tour from which the tour schedule will be created.</source>
        <translation>Kies de ronde waarvan het schema wordt gemaakt.</translation>
    </message>
    <message>
        <source>Tour Description:</source>
        <translation>Omschrijving:</translation>
    </message>
    <message>
        <source>Tour Tolerance:</source>
        <translation>Tolerantie:</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>min</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Hardware List Report</source>
        <translation>Hardwarelijst</translation>
    </message>
    <message>
        <source>List all the defined buttons</source>
        <translation>Alle vastgelegde chips</translation>
    </message>
    <message>
        <source>Select the options for the hardware report</source>
        <translation>Kies wat in de hardwarelijst komt</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Incident</translation>
    </message>
    <message>
        <source>E&amp;vent</source>
        <translation>&amp;Incident</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Controlepunten</translation>
    </message>
    <message>
        <source>Incidents</source>
        <translation>Incidenten</translation>
    </message>
    <message>
        <source>Hardware Code</source>
        <translation>Hardwarecode</translation>
    </message>
    <message>
        <source>You must add at least one reader before this report can be used</source>
        <translation>Voor dit rapport moet minstens één lezer zijn vastgelegd</translation>
    </message>
    <message>
        <source>A master adds tours on the Setup page.</source>
        <translation>De beheerder legt rondes vast op de pagina ‘Beheer’.</translation>
    </message>
    <message>
        <source>A master adds readers on the Setup page.</source>
        <translation>De beheerder legt lezers vast op de pagina ‘Beheer’.</translation>
    </message>
    <message>
        <source>You must add at least one tour before this report can be used</source>
        <translation>Voor dit rapport moet minstens één ronde zijn vastgelegd</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>You could not be logged in.  Closing the program now.</source>
        <translation>Het aanmelden is niet gelukt. Het programma wordt afgesloten.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Uitlezen</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapporten</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Beheer</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Button Name</source>
        <translation>Chip</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Groep</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>De help kan niet worden getoond. Bij dit programma hoort geen help.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Wardlock authors. Free software under the MIT License.</source>
        <translation>Copyright © 2026 de auteurs van Wardlock. Vrije software onder de MIT-licentie.</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Beheerder</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Gebruiker</translation>
    </message>
    <message>
        <source>The passwords do not match, please re-enter</source>
        <translation>De wachtwoorden komen niet overeen. Voer ze opnieuw in</translation>
    </message>
    <message>
        <source>Opening Database...</source>
        <translation>Database wordt geopend…</translation>
    </message>
    <message>
        <source>Compacting Database...</source>
        <translation>Database wordt gecomprimeerd…</translation>
    </message>
    <message>
        <source>Loading Application...</source>
        <translation>Programma wordt geladen…</translation>
    </message>
    <message>
        <source>Initializing Online Help...</source>
        <translation>Help wordt voorbereid…</translation>
    </message>
    <message>
        <source>Error in creating new Tour</source>
        <translation>Fout bij het aanmaken van de ronde</translation>
    </message>
    <message>
        <source>The tour has no points. A master adds them on the Setup page.</source>
        <translation>De ronde heeft geen punten. De beheerder legt ze vast op de pagina ‘Beheer’.</translation>
    </message>
    <message>
        <source>This tour does not exist any more, or it cannot be read.</source>
        <translation>Deze ronde bestaat niet meer of is niet leesbaar.</translation>
    </message>
    <message>
        <source>The settings cannot be saved. Changes you make now are lost when the program ends.</source>
        <translation>De instellingen kunnen niet worden opgeslagen. Wijzigingen gaan bij het afsluiten verloren.</translation>
    </message>
    <message>
        <source>EARLY</source>
        <translation>TE VROEG</translation>
    </message>
    <message>
        <source>ON TIME</source>
        <translation>OP TIJD</translation>
    </message>
    <message>
        <source>LATE</source>
        <translation>TE LAAT</translation>
    </message>
    <message>
        <source>OUT OF SEQUENCE</source>
        <translation>BUITEN VOLGORDE</translation>
    </message>
    <message>
        <source>%0:s points: %1:s</source>
        <translation>%0:s punten: %1:s</translation>
    </message>
    <message>
        <source>1 point: %0:s</source>
        <translation>1 punt: %0:s</translation>
    </message>
    <message>
        <source>%0:s, %1:s</source>
        <translation>%0:s, %1:s</translation>
    </message>
    <message>
        <source>%0:s: %1:s</source>
        <translation>%0:s: %1:s</translation>
    </message>
    <message>
        <source>%0:s on time</source>
        <translation>%0:s op tijd</translation>
    </message>
    <message>
        <source>%0:s early</source>
        <translation>%0:s te vroeg</translation>
    </message>
    <message>
        <source>%0:s late</source>
        <translation>%0:s te laat</translation>
    </message>
    <message>
        <source>%0:s missing</source>
        <translation>%0:s gemist</translation>
    </message>
    <message>
        <source>NOT ON TOUR</source>
        <translation>NIET IN RONDE</translation>
    </message>
    <message>
        <source>NO EXCEPTIONS</source>
        <translation>GEEN AFWIJKINGEN</translation>
    </message>
    <message>
        <source>EXCEPTION</source>
        <translation>AFWIJKING</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>GEMIST</translation>
    </message>
    <message>
        <source>to</source>
        <translation>tot</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>INCIDENT</translation>
    </message>
    <message>
        <source>Generating Report</source>
        <translation>Rapport wordt gemaakt</translation>
    </message>
    <message>
        <source>Please wait, generating report (this may take a few minutes)</source>
        <translation>Even geduld, het rapport wordt gemaakt (dit kan enkele minuten duren)</translation>
    </message>
    <message>
        <source>Date Range:   From %0:s to %1:s</source>
        <translation>Periode:   van %0:s tot %1:s</translation>
    </message>
    <message>
        <source>No Data on the report</source>
        <translation>Geen gegevens voor het rapport</translation>
    </message>
    <message>
        <source>See error.log for the reason.</source>
        <translation>De reden staat in error.log.</translation>
    </message>
    <message>
        <source>Please check these choices, and whether the reader has been downloaded.</source>
        <translation>Controleer deze keuzes. Is de lezer uitgelezen?</translation>
    </message>
    <message>
        <source>There is no data to show for these parameters</source>
        <translation>Bij deze keuze zijn er geen gegevens</translation>
    </message>
    <message>
        <source>The start date cannot be later than the end date</source>
        <translation>De begindatum mag niet na de einddatum liggen</translation>
    </message>
    <message>
        <source>Reader Download Report</source>
        <translation>Uitleesrapport</translation>
    </message>
    <message>
        <source>Lists details of each download to the PC for a reader</source>
        <translation>Alles wat uit een lezer is uitgelezen</translation>
    </message>
    <message>
        <source>Download Time:</source>
        <translation>Uitgelezen op:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Date / Time</source>
        <translation>Datum / tijd</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groep</translation>
    </message>
    <message>
        <source>Database Report</source>
        <translation>Databaserapport</translation>
    </message>
    <message>
        <source>Raw data from database</source>
        <translation>Ruwe gegevens uit de database</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Print Date:</source>
        <translation>Afdrukdatum:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Tour Date:</source>
        <translation>Datum ronde:</translation>
    </message>
    <message>
        <source>Tour Name:</source>
        <translation>Ronde:</translation>
    </message>
    <message>
        <source>Tolerance (min):</source>
        <translation>Tolerantie (min):</translation>
    </message>
    <message>
        <source>Site/Location</source>
        <translation>Object/controlepunt</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>End Of Report</source>
        <translation>Einde van het rapport</translation>
    </message>
    <message>
        <source>Show Events:</source>
        <translation>Met incidenten:</translation>
    </message>
    <message>
        <source>Tour Report</source>
        <translation>Ronderapport</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>Afwijkingenrapport</translation>
    </message>
    <message>
        <source>Reader ID</source>
        <translation>Lezer-ID</translation>
    </message>
    <message>
        <source>Transfer progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Transfer progress in percent</source>
        <translation>Voortgang in procenten</translation>
    </message>
    <message>
        <source>Do not remove the reader until download is complete.</source>
        <translation>Neem de lezer niet weg voordat het uitlezen is voltooid.</translation>
    </message>
    <message>
        <source>Docking Station</source>
        <translation>Dockingstation</translation>
    </message>
    <message>
        <source>Connection progress</source>
        <translation>Verbinding maken</translation>
    </message>
    <message>
        <source>&amp;Download Data</source>
        <translation>Gegevens &amp;uitlezen</translation>
    </message>
    <message>
        <source>Stores the touches of the docked reader, then erases the reader</source>
        <translation>Slaat de registraties van de geplaatste lezer op en wist daarna de lezer</translation>
    </message>
    <message>
        <source>Erases the docked reader without storing its touches</source>
        <translation>Wist de geplaatste lezer zonder de registraties op te slaan</translation>
    </message>
    <message>
        <source>&amp;Erase Reader</source>
        <translation>Lezer &amp;wissen</translation>
    </message>
    <message>
        <source>Download result</source>
        <translation>Resultaat van het uitlezen</translation>
    </message>
    <message>
        <source>Touches read</source>
        <translation>Uitgelezen registraties</translation>
    </message>
    <message>
        <source>Communications  Setup</source>
        <translation>Verbinding instellen</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Poort:</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation>Appa&amp;raat:</translation>
    </message>
    <message>
        <source>The device for this port number</source>
        <translation>Het apparaat bij dit poortnummer</translation>
    </message>
    <message>
        <source>Leave the device set to Automatic unless the docking station uses another one.</source>
        <translation>Laat het apparaat op ‘Automatisch’ staan, tenzij het dockingstation een ander apparaat gebruikt.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuleren</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>Helptekst</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Zoeken:</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhoud</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vooruit</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Niets gevonden.</translation>
    </message>
    <message>
        <source>Help on This &amp;Page</source>
        <translation>Help bij deze &amp;pagina</translation>
    </message>
    <message>
        <source>The help is in English.</source>
        <translation>De help is in het Engels.</translation>
    </message>
    <message>
        <source>It is not a help file of this program.</source>
        <translation>Het is geen helpbestand van dit programma.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Taal:</translation>
    </message>
    <message>
        <source>&amp;Master</source>
        <translation>&amp;Beheerder</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Gebruiker</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Wachtwoord:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina's</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Paginatitel</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extra</translation>
    </message>
    <message>
        <source>User &amp;Maintenance</source>
        <translation>Wachtwoor&amp;den</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Af&amp;sluiten</translation>
    </message>
    <message>
        <source>Com &amp;Options...</source>
        <translation>&amp;COM-poort…</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Taal</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhoud</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Programmapictogram</translation>
    </message>
    <message>
        <source>User Maintenance</source>
        <translation>Wachtwoorden</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>Wachtwoord &amp;herhalen:</translation>
    </message>
    <message>
        <source>Report Parameters</source>
        <translation>Rapportparameters</translation>
    </message>
    <message>
        <source>Select the tour and start date to create the report</source>
        <translation>Kies de ronde en de datum voor het rapport</translation>
    </message>
    <message>
        <source>Choose the reader</source>
        <translation>Kies de lezer</translation>
    </message>
    <message>
        <source>Select the date range and reader ID to create the Reader Download Report</source>
        <translation>Kies de periode en de lezer voor het uitleesrapport</translation>
    </message>
    <message>
        <source>Reset Dates</source>
        <translation>Op vandaag zetten</translation>
    </message>
    <message>
        <source>Sets the range back to today</source>
        <translation>Zet de periode terug op vandaag</translation>
    </message>
    <message>
        <source>Select the date range to create the report</source>
        <translation>Kies de periode voor het rapport</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Snelkeuze:</translation>
    </message>
    <message>
        <source>Only this event; the places that were touched before it are shown with it</source>
        <translation>Alleen dit incident, met de plaatsen die ervoor zijn geregistreerd</translation>
    </message>
    <message>
        <source>Only touches made while this site was the last one touched</source>
        <translation>Alleen registraties waarvóór dit object als laatste is geregistreerd</translation>
    </message>
    <message>
        <source>Sets the range and makes the report at once</source>
        <translation>Stelt de periode in en maakt het rapport meteen</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Laatste 7 dagen</translation>
    </message>
    <message>
        <source>Last30 Days</source>
        <translation>Laatste 30 dagen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameters</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Ronde</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>&amp;Ronde</translation>
    </message>
    <message>
        <source>Tour &amp;Date</source>
        <translation>&amp;Datum ronde</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Lezer</translation>
    </message>
    <message>
        <source>&amp;Reader</source>
        <translation>&amp;Lezer</translation>
    </message>
    <message>
        <source>Report Options</source>
        <translation>Rapportopties</translation>
    </message>
    <message>
        <source>Show &amp;All Tour Points</source>
        <translation>Alle &amp;punten tonen</translation>
    </message>
    <message>
        <source>Only Show &amp;Exceptions</source>
        <translation>Alleen afwijkingen &amp;tonen</translation>
    </message>
    <message>
        <source>&amp;Include Events</source>
        <translation>&amp;Met incidenten</translation>
    </message>
    <message>
        <source>Also shows the incidents recorded at each point</source>
        <translation>Toont ook de gebeurtenissen die bij elk punt zijn geregistreerd</translation>
    </message>
    <message>
        <source>&amp;Start Date</source>
        <translation>&amp;Begindatum</translation>
    </message>
    <message>
        <source>Start &amp;Time</source>
        <translation>Beginti&amp;jd</translation>
    </message>
    <message>
        <source>&amp;End Date</source>
        <translation>&amp;Einddatum</translation>
    </message>
    <message>
        <source>En&amp;d Date</source>
        <translation>&amp;Einddatum</translation>
    </message>
    <message>
        <source>End Ti&amp;me</source>
        <translation>Ein&amp;dtijd</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Items</translation>
    </message>
    <message>
        <source>No entry contains this.</source>
        <translation>Geen item bevat deze tekst.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Incident Report</source>
        <translation>Incidentenrapport</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers</source>
        <translation>Incidenten per periode en lezer</translation>
    </message>
    <message>
        <source>Incident Report with Sites</source>
        <translation>Incidentenrapport met objecten</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers with sites</source>
        <translation>Incidenten per periode en lezer, met objecten</translation>
    </message>
    <message>
        <source>&amp;Readers:</source>
        <translation>&amp;Lezers:</translation>
    </message>
    <message>
        <source>&amp;Events:</source>
        <translation>&amp;Incidenten:</translation>
    </message>
    <message>
        <source>Select Incident/s</source>
        <translation>Incidenten kiezen</translation>
    </message>
    <message>
        <source>%0:s [%1:s] -- %2:s</source>
        <translation>%0:s [%1:s] -- %2:s</translation>
    </message>
    <message>
        <source>There must be at least one reader selected to create a report</source>
        <translation>Voor het rapport moet minstens één lezer zijn gekozen</translation>
    </message>
    <message>
        <source>An event was deleted meanwhile. Please open the dialog of the report again.</source>
        <translation>Intussen is een incident verwijderd. Open het venster van het rapport opnieuw.</translation>
    </message>
    <message>
        <source>No reader is defined.</source>
        <translation>Er is geen lezer vastgelegd.</translation>
    </message>
    <message>
        <source>No event is defined. A master adds event books on the Setup page.</source>
        <translation>Er is geen incident vastgelegd. De beheerder legt incidentenboeken vast op de pagina ‘Beheer’.</translation>
    </message>
    <message>
        <source>There must be at least one event selected to create a report</source>
        <translation>Voor het rapport moet minstens één incident zijn gekozen</translation>
    </message>
    <message>
        <source>No incidents of this type were recorded</source>
        <translation>Er zijn geen incidenten van deze soort geregistreerd</translation>
    </message>
    <message>
        <source>%0:s, %1:s,  %2:s</source>
        <translation>%0:s, %1:s,  %2:s</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Van:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Tot:</translation>
    </message>
    <message>
        <source>No event has the code %0:s.</source>
        <translation>Er is geen incident met code %0:s.</translation>
    </message>
    <message>
        <source>There is no site named %0:s.</source>
        <translation>Er is geen object met de naam %0:s.</translation>
    </message>
    <message>
        <source>Select the date and other filters to create the Incident report</source>
        <translation>Kies de periode en de filters voor het incidentenrapport</translation>
    </message>
    <message>
        <source>Incidents And Locations Report</source>
        <translation>Incidenten en controlepunten</translation>
    </message>
    <message>
        <source>Reader Name</source>
        <translation>Lezer</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Incident</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>Afdruk&amp;voorbeeld</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Opslaan als PDF</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige pagina</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Volgende pagina</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Paginanummer</translation>
    </message>
    <message>
        <source>of</source>
        <translation>van</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Ware grootte</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Paginabreedte</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Hele pagina</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>The report could not be exported.</source>
        <translation>Het rapport kon niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Het rapport kon niet worden afgedrukt.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Lezer instellen</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Sa&amp;me as PC Clock:</source>
        <translation>Gelijk aan de &amp;pc-klok:</translation>
    </message>
    <message>
        <source>C&amp;ustom Time</source>
        <translation>Andere &amp;tijd</translation>
    </message>
    <message>
        <source>Custom Time</source>
        <translation>Andere tijd</translation>
    </message>
    <message>
        <source>What the reader does at each touch</source>
        <translation>Wat de lezer bij elke registratie doet</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>PC time</source>
        <translation>Pc-tijd</translation>
    </message>
    <message>
        <source>&amp;Automatically Set Time and Date to PC's settings when downloading Data</source>
        <translation>Datum en tijd bij het &amp;uitlezen gelijkzetten met de pc</translation>
    </message>
    <message>
        <source>Reader Options</source>
        <translation>Signalen van de lezer</translation>
    </message>
    <message>
        <source>&amp;Buzzer Enabled</source>
        <translation>&amp;Zoemer aan</translation>
    </message>
    <message>
        <source>&amp;LED Enabled</source>
        <translation>&amp;Led aan</translation>
    </message>
    <message>
        <source>&amp;Vibration Enabled</source>
        <translation>T&amp;rillen aan</translation>
    </message>
    <message>
        <source>Buzzer Duration</source>
        <translation>Duur zoemer</translation>
    </message>
    <message>
        <source>S&amp;hort</source>
        <translation>&amp;Kort</translation>
    </message>
    <message>
        <source>L&amp;ong</source>
        <translation>Lan&amp;g</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Verzenden</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Let op:</translation>
    </message>
    <message>
        <source>If you select a custom date then this will only apply for one time</source>
        <translation>Een andere datum geldt alleen voor deze ene keer.</translation>
    </message>
    <message>
        <source>The automatic update feature only uses the PC's date and time</source>
        <translation>Automatisch gelijkzetten gebeurt altijd volgens de pc.</translation>
    </message>
    <message>
        <source>You must select at least one of the reader options (Led, Buzzer or Vibration)</source>
        <translation>Kies minstens één signaal van de lezer (led, zoemer of trillen)</translation>
    </message>
    <message>
        <source>Reader update successful</source>
        <translation>De lezer is ingesteld</translation>
    </message>
    <message>
        <source>Reader update failed.  Please try again.</source>
        <translation>De lezer kon niet worden ingesteld. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The options were set, but the clock was not.</source>
        <translation>De signalen zijn ingesteld, maar de klok is niet gelijkgezet.</translation>
    </message>
    <message>
        <source>The clock was set, but the options were not.</source>
        <translation>De klok is gelijkgezet, maar de signalen zijn niet ingesteld.</translation>
    </message>
    <message>
        <source>Add New Reader</source>
        <translation>Nieuwe lezer</translation>
    </message>
    <message>
        <source>Add New Button</source>
        <translation>Nieuwe chip</translation>
    </message>
    <message>
        <source>Button ID:</source>
        <translation>Chipcode:</translation>
    </message>
    <message>
        <source>Button ID</source>
        <translation>Chipcode</translation>
    </message>
    <message>
        <source>This Reader ID already exists!</source>
        <translation>Deze lezer is al vastgelegd!</translation>
    </message>
    <message>
        <source>That key is already used!</source>
        <translation>Deze code is al in gebruik!</translation>
    </message>
    <message>
        <source>&amp;Read ID</source>
        <translation>ID &amp;uitlezen</translation>
    </message>
    <message>
        <source>&amp;Manual Entry</source>
        <translation>&amp;Handmatig</translation>
    </message>
    <message>
        <source>Manual Entry</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>Naa&amp;m</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Not in use yet</source>
        <translation>Nog niet in gebruik</translation>
    </message>
    <message>
        <source>Reader ID Download Failed</source>
        <translation>Uitlezen van de lezer-ID mislukt</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name</source>
        <translation>Deze naam is al in gebruik. Voer een andere naam in</translation>
    </message>
    <message>
        <source>You must enter a name for this item</source>
        <translation>Voer een naam in</translation>
    </message>
    <message>
        <source>Enter the 6 digit button ID.  This is the last 6 digits visible on the front of the 'Dallas' Key. Valid characters are 0~9 and A~F.</source>
        <translation>Voer de chipcode van 6 tekens in. Dit zijn de laatste 6 tekens op de voorkant van de chip. Geldig zijn 0 t/m 9 en A t/m F.</translation>
    </message>
    <message>
        <source>Illegal Value</source>
        <translation>Ongeldige waarde</translation>
    </message>
    <message>
        <source>Firmware Version is</source>
        <translation>Firmwareversie:</translation>
    </message>
    <message>
        <source>Reader Firmware Version Test</source>
        <translation>Firmwareversie van de lezer</translation>
    </message>
    <message>
        <source>&amp;Reader Options</source>
        <translation>Lezer &amp;instellen</translation>
    </message>
    <message>
        <source>Reader Firmware Version</source>
        <translation>Firmwareversie van de lezer</translation>
    </message>
    <message>
        <source>The reader did not report its firmware version.</source>
        <translation>De lezer heeft geen firmwareversie opgegeven.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station and read its ID.</source>
        <translation>Plaats de lezer in het dockingstation en lees de ID uit.</translation>
    </message>
    <message>
        <source>Touch the reader in the docking station with the new button, or enter its ID by hand.</source>
        <translation>Houd de nieuwe chip tegen de lezer in het dockingstation of voer de code met de hand in.</translation>
    </message>
    <message>
        <source>Only the master may do this.</source>
        <translation>Alleen de beheerder mag dit doen.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Nieuw</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>Tour &amp;Copy</source>
        <translation>Ronde &amp;kopiëren</translation>
    </message>
    <message>
        <source>Opens the selected row (double click)</source>
        <translation>Opent de gekozen regel (dubbelklik)</translation>
    </message>
    <message>
        <source>Adds a new row</source>
        <translation>Voegt een regel toe</translation>
    </message>
    <message>
        <source>Deletes the selected row (Del)</source>
        <translation>Verwijdert de gekozen regel (Del)</translation>
    </message>
    <message>
        <source>Makes a new tour as a copy of another</source>
        <translation>Maakt een nieuwe ronde als kopie van een andere</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Stamgegevens</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Objecten</translation>
    </message>
    <message>
        <source>Event Books</source>
        <translation>Incidentenboeken</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rondes</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Lezers</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Object</translation>
    </message>
    <message>
        <source>S&amp;ite</source>
        <translation>&amp;Object</translation>
    </message>
    <message>
        <source>Event Book</source>
        <translation>Incidentenboek</translation>
    </message>
    <message>
        <source>User Group</source>
        <translation>Gebruikersgroep</translation>
    </message>
    <message>
        <source>Tour Name</source>
        <translation>Ronde</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Begintijd</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Chips</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken:</translation>
    </message>
    <message>
        <source>Edit Reader</source>
        <translation>Lezer bewerken</translation>
    </message>
    <message>
        <source>Edit Time</source>
        <translation>Tijd wijzigen</translation>
    </message>
    <message>
        <source>&amp;Edit Time</source>
        <translation>Tij&amp;d wijzigen</translation>
    </message>
    <message>
        <source>&amp;Minutes since the previous point</source>
        <translation>&amp;Minuten sinds het vorige punt</translation>
    </message>
    <message>
        <source>Select Tour to copy</source>
        <translation>Kies de ronde om te kopiëren</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Naam:</translation>
    </message>
    <message>
        <source>Descri&amp;ption :</source>
        <translation>Om&amp;schrijving:</translation>
    </message>
    <message>
        <source>Tour Start Ti&amp;me:</source>
        <translation>&amp;Begintijd:</translation>
    </message>
    <message>
        <source>To&amp;lerance (minutes):</source>
        <translation>Tole&amp;rantie (minuten):</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>Ob&amp;ject:</translation>
    </message>
    <message>
        <source>A&amp;vailable Locations</source>
        <translation>Beschi&amp;kbare controlepunten</translation>
    </message>
    <message>
        <source>Available Locations</source>
        <translation>Beschikbare controlepunten</translation>
    </message>
    <message>
        <source>Current T&amp;our Locations</source>
        <translation>&amp;Punten van de ronde</translation>
    </message>
    <message>
        <source>Current Tour Locations</source>
        <translation>Punten van de ronde</translation>
    </message>
    <message>
        <source>&amp;Add -&gt;</source>
        <translation>&amp;Toevoegen -&gt;</translation>
    </message>
    <message>
        <source>&lt;- &amp;Remove</source>
        <translation>&lt;- &amp;Verwijderen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Om&amp;hoog</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Om&amp;laag</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>Leeg&amp;maken</translation>
    </message>
    <message>
        <source>Removes all points from the tour</source>
        <translation>Haalt alle punten uit de ronde</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Opslaan</translation>
    </message>
    <message>
        <source>Customize Tour Sequence</source>
        <translation>Ronde samenstellen</translation>
    </message>
    <message>
        <source>Location Name</source>
        <translation>Controlepunt</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>Omschrijving</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Controlepunt</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Controlepunt</translation>
    </message>
    <message>
        <source>Add New User</source>
        <translation>Nieuwe gebruiker</translation>
    </message>
    <message>
        <source>Add New Location</source>
        <translation>Nieuw controlepunt</translation>
    </message>
    <message>
        <source>Add New Event</source>
        <translation>Nieuw incident</translation>
    </message>
    <message>
        <source>No Item is selected</source>
        <translation>Er is niets geselecteerd</translation>
    </message>
    <message>
        <source>No sites yet. A site is a place with location buttons. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Nog geen objecten. Een object is een plaats met controlepunten. Kies ‘Nieuw’ om er een vast te leggen en daarna ‘Bewerken’ om de chips toe te voegen.</translation>
    </message>
    <message>
        <source>No event books yet. The buttons of an event book stand for incidents. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Nog geen incidentenboeken. Elke chip van zo'n boek staat voor een incident. Kies ‘Nieuw’ om er een vast te leggen en daarna ‘Bewerken’ om de chips toe te voegen.</translation>
    </message>
    <message>
        <source>No tours yet. Press Add for a new one, then Edit to choose its locations.</source>
        <translation>Nog geen rondes. Kies ‘Nieuw’ om er een vast te leggen en daarna ‘Bewerken’ om de controlepunten te kiezen.</translation>
    </message>
    <message>
        <source>No readers yet. Put a reader into the docking station and press Add. Without a docking station no reader can be added.</source>
        <translation>Nog geen lezers. Plaats een lezer in het dockingstation en kies ‘Nieuw’. Zonder dockingstation kan geen lezer worden toegevoegd.</translation>
    </message>
    <message>
        <source>No buttons yet. Press Add, then touch the reader in the docking station with a button.</source>
        <translation>Nog geen chips. Kies ‘Nieuw’ en houd dan een chip tegen de lezer in het dockingstation.</translation>
    </message>
    <message>
        <source>No buttons yet. A new button is read at the docking station, which is not connected.</source>
        <translation>Nog geen chips. Een nieuwe chip wordt via het dockingstation gelezen, maar dat is niet verbonden.</translation>
    </message>
    <message>
        <source>This site has no location buttons yet. Add them on the Setup page: select the site and press Edit.</source>
        <translation>Dit object heeft nog geen controlepunten. Leg ze vast op de pagina ‘Beheer’: selecteer het object en kies ‘Bewerken’.</translation>
    </message>
    <message>
        <source>The tour has no points yet. Select a location in the other list and press Add, in the order of the tour.</source>
        <translation>De ronde heeft nog geen punten. Selecteer een controlepunt in de andere lijst en kies ‘Toevoegen’, in de volgorde van de ronde.</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text (Ctrl+F).</source>
        <translation>Toont alleen de regels met deze tekst (Ctrl+F).</translation>
    </message>
    <message>
        <source>A touch that is early or late by no more minutes than this counts as on time.</source>
        <translation>Een registratie die hooguit dit aantal minuten te vroeg of te laat is, geldt als op tijd.</translation>
    </message>
    <message>
        <source>For the first point: the minutes since the start of the tour.</source>
        <translation>Voor het eerste punt: de minuten sinds het begin van de ronde.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost.</source>
        <translation>‘%0:s’ gaat verloren.</translation>
    </message>
    <message>
        <source>"%0:s" and its buttons will be lost.</source>
        <translation>‘%0:s’ en de bijbehorende chips gaan verloren.</translation>
    </message>
    <message>
        <source>"%0:s" and its points will be lost.</source>
        <translation>‘%0:s’ en de bijbehorende punten gaan verloren.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost. Touches that are already downloaded are kept.</source>
        <translation>‘%0:s’ gaat verloren. Registraties die al zijn uitgelezen, blijven bewaard.</translation>
    </message>
    <message>
        <source>The name could not be saved. Nothing was changed.</source>
        <translation>De naam kon niet worden opgeslagen. Er is niets gewijzigd.</translation>
    </message>
    <message>
        <source>The password is empty. Anyone could log in without one.</source>
        <translation>Het wachtwoord is leeg. Iedereen kan zich zonder wachtwoord aanmelden.</translation>
    </message>
    <message>
        <source>Do you want to save it?</source>
        <translation>Toch opslaan?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Weet u zeker dat u dit item wilt verwijderen?</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name.</source>
        <translation>Deze naam is al in gebruik. Voer een andere naam in.</translation>
    </message>
    <message>
        <source>You must enter a name for this group</source>
        <translation>Voer een naam in voor deze groep</translation>
    </message>
    <message>
        <source>A name or description cannot contain line breaks or other control characters.</source>
        <translation>Namen en omschrijvingen mogen geen regeleinden of andere stuurtekens bevatten.</translation>
    </message>
    <message>
        <source>The tour could not be saved. Nothing was changed.</source>
        <translation>De ronde kon niet worden opgeslagen. Er is niets gewijzigd.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Discard them?</source>
        <translation>De wijzigingen zijn niet opgeslagen. Wijzigingen negeren?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete it?</source>
        <translation>Weet u zeker dat u deze groep wilt verwijderen?</translation>
    </message>
    <message>
        <source>The selected group contains sub-items</source>
        <translation>De geselecteerde groep bevat chips.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this reader?</source>
        <translation>Weet u zeker dat u deze lezer wilt verwijderen?</translation>
    </message>
    <message>
        <source>You must add at least one location before you can define a tour</source>
        <translation>Voor de eerste ronde moet minstens één controlepunt zijn vastgelegd</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this tour?</source>
        <translation>Weet u zeker dat u deze ronde wilt verwijderen?</translation>
    </message>
    <message>
        <source>The selected Tour contains data.</source>
        <translation>De geselecteerde ronde bevat punten.</translation>
    </message>
    <message>
        <source>Cannot find any Tour Points to copy</source>
        <translation>De ronde heeft geen punten om te kopiëren</translation>
    </message>
    <message>
        <source>Cannot assign two sequential tour points with the same location</source>
        <translation>Hetzelfde controlepunt mag niet twee keer direct na elkaar staan</translation>
    </message>
    <message>
        <source>The tolerance value can only range from 0 to 59 minutes</source>
        <translation>De tolerantie moet tussen 0 en 59 minuten liggen</translation>
    </message>
    <message>
        <source>The total tour time can only range from 0 to 1439 minutes</source>
        <translation>De hele ronde mag hoogstens 1439 minuten duren</translation>
    </message>
    <message>
        <source>Only valid numbers from 0 to 1439 can be entered</source>
        <translation>Alleen gehele getallen van 0 tot en met 1439 zijn geldig</translation>
    </message>
    <message>
        <source>The docking station is no longer connected. Enter the ID by hand, or go to the home page to connect again.</source>
        <translation>Het dockingstation is niet meer verbonden. Voer de code met de hand in of ga naar de startpagina om opnieuw verbinding te maken.</translation>
    </message>
    <message>
        <source>&amp;Archive Events</source>
        <translation>Registraties &amp;archiveren</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Reservekopie</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Terugzetten</translation>
    </message>
    <message>
        <source>Company &amp;Info</source>
        <translation>Bedrijfs&amp;gegevens</translation>
    </message>
    <message>
        <source>&amp;About </source>
        <translation>&amp;Over </translation>
    </message>
    <message>
        <source>Company Info</source>
        <translation>Bedrijfsgegevens</translation>
    </message>
    <message>
        <source>These lines are printed at the head of each report. After the next start, only the first 50 characters of a line are printed.</source>
        <translation>Deze regels staan boven aan elk rapport. Na de volgende start worden van elke regel alleen de eerste 50 tekens afgedrukt.</translation>
    </message>
    <message>
        <source>Line &amp;1:</source>
        <translation>Regel &amp;1:</translation>
    </message>
    <message>
        <source>Line &amp;2:</source>
        <translation>Regel &amp;2:</translation>
    </message>
    <message>
        <source>Line &amp;3:</source>
        <translation>Regel &amp;3:</translation>
    </message>
    <message>
        <source>Line &amp;4:</source>
        <translation>Regel &amp;4:</translation>
    </message>
    <message>
        <source>The company info cannot be saved. This file cannot be written:</source>
        <translation>De bedrijfsgegevens kunnen niet worden opgeslagen. Dit bestand is niet beschrijfbaar:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>You may use, change and pass on this program, as long as the text of the License stays with it.</source>
        <translation>Dit programma mag worden gebruikt, gewijzigd en doorgegeven, zolang de licentietekst erbij blijft.</translation>
    </message>
    <message>
        <source>It comes without any warranty.</source>
        <translation>Er wordt geen enkele garantie gegeven.</translation>
    </message>
    <message>
        <source>For a description of the program, choose Help, Contents.</source>
        <translation>Een beschrijving van het programma staat onder Help, Inhoud.</translation>
    </message>
    <message>
        <source>If something does not work, report it to the person who looks after this installation. Give the version and the build shown above, and send this file:</source>
        <translation>Werkt er iets niet, meld het dan bij de persoon die deze installatie beheert. Vermeld de versie en de build hierboven en stuur dit bestand mee:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contactpersoon</translation>
    </message>
    <message>
        <source>WK3_ENG.HLP</source>
        <translation>WK3_ENG.HLP</translation>
    </message>
    <message>
        <source>This folder does not exist. Please choose another one.</source>
        <translation>Deze map bestaat niet. Kies een andere map.</translation>
    </message>
    <message>
        <source>A file name can have at most 100 characters.</source>
        <translation>Een bestandsnaam mag hoogstens 100 tekens bevatten.</translation>
    </message>
    <message>
        <source>Select backup destination</source>
        <translation>Kies de plaats van de reservekopie</translation>
    </message>
    <message>
        <source>Database Files (*.mdb)</source>
        <translation>Databasebestanden (*.mdb)</translation>
    </message>
    <message>
        <source>That filename is already in use. Please choose another filename</source>
        <translation>Deze bestandsnaam is al in gebruik. Kies een andere bestandsnaam</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Reservekopie</translation>
    </message>
    <message>
        <source>The database is being copied and checked.</source>
        <translation>De database wordt gekopieerd en gecontroleerd.</translation>
    </message>
    <message>
        <source>Successfully copied the database to :</source>
        <translation>De database is gekopieerd naar:</translation>
    </message>
    <message>
        <source>The file was changed while it was read.</source>
        <translation>Het bestand is gewijzigd terwijl het werd gelezen.</translation>
    </message>
    <message>
        <source>The copy is damaged: %0:s</source>
        <translation>De kopie is beschadigd: %0:s</translation>
    </message>
    <message>
        <source>The copy does not have the rows of the database.</source>
        <translation>De kopie bevat niet dezelfde rijen als de database.</translation>
    </message>
    <message>
        <source>The database was not copied.</source>
        <translation>De database is niet gekopieerd.</translation>
    </message>
    <message>
        <source>The database itself is damaged.</source>
        <translation>De database zelf is beschadigd.</translation>
    </message>
    <message>
        <source>The program itself uses this file. Please choose another filename.</source>
        <translation>Het programma gebruikt dit bestand zelf. Kies een andere bestandsnaam.</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>Het bestand of de map bestaat niet.</translation>
    </message>
    <message>
        <source>Removed:</source>
        <translation>Verwijderd:</translation>
    </message>
    <message>
        <source>Not removed:</source>
        <translation>Niet verwijderd:</translation>
    </message>
    <message>
        <source>A program was killed while it wrote to this file. Its journal is still beside it.</source>
        <translation>Een programma is afgebroken terwijl het naar dit bestand schreef. Het journaalbestand staat er nog naast.</translation>
    </message>
    <message>
        <source>You do not have permission to read this file.</source>
        <translation>Leesrechten voor dit bestand ontbreken.</translation>
    </message>
    <message>
        <source>It is not a database of this program, or it is damaged.</source>
        <translation>Het is geen database van dit programma, of het bestand is beschadigd.</translation>
    </message>
    <message>
        <source>The database is damaged:</source>
        <translation>De database is beschadigd:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Niet aanwezig:</translation>
    </message>
    <message>
        <source>Buttons whose group does not exist:</source>
        <translation>Chips waarvan de groep niet bestaat:</translation>
    </message>
    <message>
        <source>Tour points whose tour does not exist:</source>
        <translation>Punten waarvan de ronde niet bestaat:</translation>
    </message>
    <message>
        <source>Tour points whose button does not exist:</source>
        <translation>Punten waarvan de chip niet bestaat:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Opslaan als</translation>
    </message>
    <message>
        <source>Comma Delimited Text (*.csv)</source>
        <translation>Tekst, door komma's gescheiden (*.csv)</translation>
    </message>
    <message>
        <source>Archive Events</source>
        <translation>Registraties archiveren</translation>
    </message>
    <message>
        <source>Choose the first and the last day. Their events are moved into a file and deleted from the database. They cannot be brought back from the file.</source>
        <translation>Kies de eerste en de laatste dag. De registraties van deze periode worden naar een bestand verplaatst en uit de database verwijderd. Uit het bestand kunnen ze niet worden teruggehaald.</translation>
    </message>
    <message>
        <source>Warning: This action will permanently delete the events from the database.</source>
        <translation>Waarschuwing: de registraties worden definitief uit de database verwijderd.</translation>
    </message>
    <message>
        <source>Select location of backup database file</source>
        <translation>Kies de reservekopie van de database</translation>
    </message>
    <message>
        <source>That filename cannot be found. Please choose another filename</source>
        <translation>Dit bestand is niet gevonden. Kies een andere bestandsnaam</translation>
    </message>
    <message>
        <source>This file is the database itself. Please choose a backup of it.</source>
        <translation>Dit bestand is de database zelf. Kies een reservekopie ervan.</translation>
    </message>
    <message>
        <source>Warning: This action will delete the existing database. You will loose ALL data in the existing database.</source>
        <translation>Waarschuwing: de bestaande database wordt verwijderd. ALLE gegevens in de bestaande database gaan verloren.</translation>
    </message>
    <message>
        <source>Are you sure you want to continue?</source>
        <translation>Weet u zeker dat u wilt doorgaan?</translation>
    </message>
    <message>
        <source>There are no stored events within the dates you entered.</source>
        <translation>In deze periode zijn geen registraties opgeslagen.</translation>
    </message>
    <message>
        <source>File Save Error: Archive Not Saved.  Please Try again.</source>
        <translation>Fout bij het opslaan: het archief is niet opgeslagen. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Events Archived Successfully</source>
        <translation>De registraties zijn gearchiveerd</translation>
    </message>
    <message>
        <source>Number of Events =</source>
        <translation>Aantal registraties:</translation>
    </message>
    <message>
        <source>FileName = </source>
        <translation>Bestand:</translation>
    </message>
    <message>
        <source>The events are written to the file and then deleted from the database.</source>
        <translation>De registraties worden naar het bestand geschreven en daarna uit de database verwijderd.</translation>
    </message>
    <message>
        <source>%0:s events were written, but the database deleted %1:s. Nothing was archived.</source>
        <translation>Naar het bestand geschreven registraties: %0:s, uit de database verwijderd: %1:s. Omdat dit niet overeenkomt, is er niets gearchiveerd.</translation>
    </message>
    <message>
        <source>The events were written to %0:s, but they are still in the database: %1:s</source>
        <translation>De registraties zijn naar het bestand %0:s geschreven, maar staan nog in de database: %1:s</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Terugzetten</translation>
    </message>
    <message>
        <source>The backup is being copied and checked.</source>
        <translation>De reservekopie wordt gekopieerd en gecontroleerd.</translation>
    </message>
    <message>
        <source>The database is in use. Waiting until it is free.</source>
        <translation>De database is in gebruik. Even geduld tot deze vrij is.</translation>
    </message>
    <message>
        <source>Successfully copied the database</source>
        <translation>De database is gekopieerd</translation>
    </message>
    <message>
        <source>Warning : The program will now close.</source>
        <translation>Waarschuwing: het programma wordt nu afgesloten.</translation>
    </message>
    <message>
        <source>Please restart the program to continue.</source>
        <translation>Start het programma opnieuw om verder te werken.</translation>
    </message>
    <message>
        <source>The database was not restored. It is as it was before.</source>
        <translation>De database is niet teruggezet en is ongewijzigd.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program.</source>
        <translation>Het gekozen bestand is geen database van dit programma.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program, its password is different, or it is damaged.</source>
        <translation>Het gekozen bestand is geen database van dit programma, heeft een ander wachtwoord of is beschadigd.</translation>
    </message>
    <message>
        <source>The chosen file is not a complete database of this program. It lacks %0:s.</source>
        <translation>Het gekozen bestand is geen volledige database van dit programma. Niet aanwezig: %0:s.</translation>
    </message>
    <message>
        <source>The chosen file is damaged: %0:s</source>
        <translation>Het gekozen bestand is beschadigd: %0:s</translation>
    </message>
    <message>
        <source>Another program has used the database meanwhile. Please try again.</source>
        <translation>Een ander programma heeft de database intussen gebruikt. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The database was restored, but the disk reported an error. Please check it.</source>
        <translation>De database is teruggezet, maar de schijf meldde een fout. Controleer de schijf.</translation>
    </message>
</context>
</TS>
