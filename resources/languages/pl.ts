<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Wardlock</name>
    <message>
        <source>The database is damaged. Some of its events can no longer be read.</source>
        <translation>Baza danych jest uszkodzona. Części rejestracji nie można już odczytać.</translation>
    </message>
    <message>
        <source>Please restore a backup. Until then, no reader is erased.</source>
        <translation>Proszę przywrócić kopię zapasową. Do tego czasu żaden czytnik nie będzie czyszczony.</translation>
    </message>
    <message>
        <source>Another program is using it.</source>
        <translation>Baza danych jest używana przez inny program.</translation>
    </message>
    <message>
        <source>It is in use by %0:s (process %1:s).</source>
        <translation>Bazy danych używa %0:s (proces %1:s).</translation>
    </message>
    <message>
        <source>It is in use on computer %2:s by %0:s (process %1:s).</source>
        <translation>Bazy danych używa na komputerze %2:s program %0:s (proces %1:s).</translation>
    </message>
    <message>
        <source>The touches are stored, but the disk reported an error. The reader was not erased.</source>
        <translation>Rejestracje zapisano, ale dysk zgłosił błąd. Czytnik nie został wyczyszczony.</translation>
    </message>
    <message>
        <source>The disk or the network reported an error. Please check it and try again.</source>
        <translation>Dysk lub sieć zgłosiły błąd. Proszę to sprawdzić i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The database is damaged. The reader was not erased.</source>
        <translation>Baza danych jest uszkodzona. Czytnik nie został wyczyszczony.</translation>
    </message>
    <message>
        <source>A name or description can have at most 100 characters.</source>
        <translation>Nazwa lub opis może mieć najwyżej 100 znaków.</translation>
    </message>
    <message>
        <source>A password cannot contain line breaks or other control characters.</source>
        <translation>Hasło nie może zawierać podziałów wiersza ani innych znaków sterujących.</translation>
    </message>
    <message>
        <source>The report could not be created. See error.log for the reason.</source>
        <translation>Nie udało się utworzyć raportu. Przyczyna jest podana w pliku error.log.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Plik nie istnieje.</translation>
    </message>
    <message>
        <source>The folder %0:s does not exist. Please create it, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Folder %0:s nie istnieje. Proszę go utworzyć albo podać inny w WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>You may not write to the folder %0:s. Please ask for permission, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Brak uprawnień do zapisu w folderze %0:s. Proszę poprosić o uprawnienia albo podać inny folder w WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>There is no database yet. Please start the station once to create it.</source>
        <translation>Nie ma jeszcze bazy danych. Proszę raz uruchomić program Wardlock, który ją utworzy.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Dysk jest pełny.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this file or its folder.</source>
        <translation>Brak uprawnień do zapisu w tym pliku lub folderze.</translation>
    </message>
    <message>
        <source>Its password is different, or it is damaged. If it is damaged, please restore a backup.</source>
        <translation>Plik ma inne hasło albo jest uszkodzony. Jeśli jest uszkodzony, proszę przywrócić kopię zapasową.</translation>
    </message>
    <message>
        <source>It is damaged. Please restore a backup.</source>
        <translation>Plik jest uszkodzony. Proszę przywrócić kopię zapasową.</translation>
    </message>
    <message>
        <source>A journal next to the database did not belong to it. The database was opened without this journal.</source>
        <translation>Obok bazy danych znajdował się dziennik, który do niej nie należał. Bazę danych otwarto bez niego.</translation>
    </message>
    <message>
        <source>It was renamed to:</source>
        <translation>Nazwę zmieniono na:</translation>
    </message>
    <message>
        <source>The User Name / Password are incorrect. Please try again.</source>
        <translation>Nieprawidłowy użytkownik lub hasło. Proszę spróbować ponownie.</translation>
    </message>
    <message>
        <source>Could not open the com port.</source>
        <translation>Nie udało się otworzyć portu COM.</translation>
    </message>
    <message>
        <source>Check settings and try again.</source>
        <translation>Proszę sprawdzić ustawienia i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The master chooses the port under Tools, Com Options.</source>
        <translation>Administrator wybiera port w menu Narzędzia, Port COM.</translation>
    </message>
    <message>
        <source>Is the docking station plugged in, and is this its device?</source>
        <translation>Czy stacja dokująca jest podłączona i czy to jest jej urządzenie?</translation>
    </message>
    <message>
        <source>Could not connect to the docking station.</source>
        <translation>Brak połączenia ze stacją dokującą.</translation>
    </message>
    <message>
        <source>Check hardware and settings and try again.</source>
        <translation>Proszę sprawdzić urządzenia i ustawienia i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Working in Offline Mode</source>
        <translation>Praca bez stacji dokującej</translation>
    </message>
    <message>
        <source>Docking Station : OK</source>
        <translation>Stacja dokująca: OK</translation>
    </message>
    <message>
        <source>Docking Station : Not Detected</source>
        <translation>Stacja dokująca: nie znaleziono</translation>
    </message>
    <message>
        <source>%0:s is gone. Plug it in again.</source>
        <translation>Odłączono %0:s. Proszę podłączyć ponownie.</translation>
    </message>
    <message>
        <source>Last download</source>
        <translation>Ostatni odczyt</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>jeszcze nie odczytano</translation>
    </message>
    <message>
        <source>Tours of the last 24 hours</source>
        <translation>Obchody z ostatnich 24 godzin</translation>
    </message>
    <message>
        <source>Click a tour, or press Enter, to open its report.</source>
        <translation>Kliknięcie obchodu lub naciśnięcie klawisza Enter otwiera jego raport.</translation>
    </message>
    <message>
        <source>No tour was due.</source>
        <translation>W tym czasie nie planowano obchodów.</translation>
    </message>
    <message>
        <source>Readers and tours are not set up yet. A master does this on the Setup page.</source>
        <translation>Czytniki i obchody nie są jeszcze zdefiniowane. Robi to administrator na stronie „Definicje”.</translation>
    </message>
    <message>
        <source>not downloaded or not walked</source>
        <translation>nie odczytano lub nie odbyto</translation>
    </message>
    <message>
        <source>On time</source>
        <translation>O czasie</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Za wcześnie</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Za późno</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Pierwsze kroki</translation>
    </message>
    <message>
        <source>Define a site</source>
        <translation>Zdefiniuj obiekt</translation>
    </message>
    <message>
        <source>Add the buttons of the site</source>
        <translation>Dodaj pastylki obiektu</translation>
    </message>
    <message>
        <source>Add a reader</source>
        <translation>Dodaj czytnik</translation>
    </message>
    <message>
        <source>Plan a tour</source>
        <translation>Zaplanuj obchód</translation>
    </message>
    <message>
        <source>done</source>
        <translation>gotowe</translation>
    </message>
    <message>
        <source>The touches could not be stored. The reader was not erased.</source>
        <translation>Nie udało się zapisać rejestracji. Czytnik nie został wyczyszczony.</translation>
    </message>
    <message>
        <source>Touches stored: </source>
        <translation>Zapisane rejestracje: </translation>
    </message>
    <message>
        <source>The reader was taken out of the station. It was not erased.</source>
        <translation>Czytnik wyjęto ze stacji dokującej. Nie wyczyszczono go.</translation>
    </message>
    <message>
        <source>Another reader is in the station. It was not erased.</source>
        <translation>W stacji dokującej znajduje się inny czytnik. Nie wyczyszczono go.</translation>
    </message>
    <message>
        <source>The reader has been used since it was read. It was not erased.</source>
        <translation>Po odczycie czytnik był ponownie używany. Nie wyczyszczono go.</translation>
    </message>
    <message>
        <source>The reader's memory continues after its end mark. The touches that were read are stored, but the reader was not erased.</source>
        <translation>W pamięci czytnika za znacznikiem końca znajdują się dalsze dane. Odczytane rejestracje zapisano, ale czytnik nie został wyczyszczony.</translation>
    </message>
    <message>
        <source>The reader holds a different number of records than it reports. The touches that were read are stored, but the reader was not erased.</source>
        <translation>Liczba rekordów w czytniku różni się od liczby, którą podaje. Odczytane rejestracje zapisano, ale czytnik nie został wyczyszczony.</translation>
    </message>
    <message>
        <source>The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It was not set.</source>
        <translation>Zegar czytnika można ustawić tylko na datę od 1 stycznia 2000 do 6 czerwca 2179. Zegar nie został ustawiony.</translation>
    </message>
    <message>
        <source>Reader Memory NOT erased!</source>
        <translation>Pamięć czytnika NIE została wyczyszczona!</translation>
    </message>
    <message>
        <source>Reader Memory erased</source>
        <translation>Pamięć czytnika wyczyszczona</translation>
    </message>
    <message>
        <source>Reader ID:</source>
        <translation>ID czytnika:</translation>
    </message>
    <message>
        <source>KV-88 Wardlock Reports</source>
        <translation>Raporty KV-88 Wardlock</translation>
    </message>
    <message>
        <source>%0:s - Version %1:s</source>
        <translation>%0:s - Wersja %1:s</translation>
    </message>
    <message>
        <source>Download Failed</source>
        <translation>Odczyt nie powiódł się</translation>
    </message>
    <message>
        <source>Remove the cause, and then download the reader again.</source>
        <translation>Proszę usunąć przyczynę, a następnie ponownie odczytać czytnik.</translation>
    </message>
    <message>
        <source>All touches are still in the reader.</source>
        <translation>Wszystkie rejestracje są nadal w czytniku.</translation>
    </message>
    <message>
        <source>Download Successful</source>
        <translation>Odczyt zakończony pomyślnie</translation>
    </message>
    <message>
        <source>Reports of the tours in this download</source>
        <translation>Raporty z odczytanych obchodów</translation>
    </message>
    <message>
        <source>More on the Reports page: %0:s</source>
        <translation>Więcej na stronie „Raporty”: %0:s</translation>
    </message>
    <message>
        <source>Data Readings = </source>
        <translation>Rejestracje: </translation>
    </message>
    <message>
        <source>The Reader was empty</source>
        <translation>Czytnik był pusty</translation>
    </message>
    <message>
        <source>Reader Clock update failed.  Please try again.</source>
        <translation>Nie udało się ustawić zegara czytnika. Proszę spróbować ponownie.</translation>
    </message>
    <message>
        <source>The download itself is complete. The clock can be set with Reader Options in the Tools menu.</source>
        <translation>Sam odczyt został zakończony. Zegar można ustawić poleceniem „Ustawienia czytnika” w menu Narzędzia.</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the reader? </source>
        <translation>Czy na pewno wyczyścić pamięć czytnika? </translation>
    </message>
    <message>
        <source>The reader that was downloaded last:</source>
        <translation>Ostatnio odczytany czytnik:</translation>
    </message>
    <message>
        <source>Touches that have not been downloaded yet will be lost.</source>
        <translation>Rejestracje, których jeszcze nie odczytano, zostaną utracone.</translation>
    </message>
    <message>
        <source>Reader Erase Failed.  Try again?</source>
        <translation>Nie udało się wyczyścić czytnika. Spróbować ponownie?</translation>
    </message>
    <message>
        <source>As long as the reader keeps its touches, each further download stores them again.</source>
        <translation>Dopóki rejestracje pozostają w czytniku, każdy kolejny odczyt zapisuje je ponownie.</translation>
    </message>
    <message>
        <source>Reader Erased</source>
        <translation>Czytnik wyczyszczony</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznany</translation>
    </message>
    <message>
        <source>Download Error</source>
        <translation>Błąd odczytu</translation>
    </message>
    <message>
        <source>The names of the buttons could not be read from the database. See error.log for the reason.</source>
        <translation>Nie udało się odczytać nazw pastylek z bazy danych. Przyczyna jest podana w pliku error.log.</translation>
    </message>
    <message>
        <source>What the reader sent was not complete or not valid. Please try again.</source>
        <translation>Dane z czytnika były niekompletne lub nieprawidłowe. Proszę spróbować ponownie.</translation>
    </message>
    <message>
        <source>The connection to the docking station was lost. Check its cable and try again.</source>
        <translation>Utracono połączenie ze stacją dokującą. Proszę sprawdzić kabel i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The docking station could not read the reader. Take it out, put it in again, and try once more.</source>
        <translation>Stacja dokująca nie mogła odczytać czytnika. Proszę go wyjąć, włożyć ponownie i spróbować jeszcze raz.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station so that it sits firmly.</source>
        <translation>Proszę pewnie osadzić czytnik w stacji dokującej.</translation>
    </message>
    <message>
        <source>The reader stopped answering. Leave it in the docking station until the download is complete, and try again.</source>
        <translation>Czytnik przestał odpowiadać. Proszę pozostawić go w stacji dokującej do końca odczytu i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Downloading data from reader</source>
        <translation>Trwa odczyt danych z czytnika</translation>
    </message>
    <message>
        <source>Reader not detected. Check reader and try again.</source>
        <translation>Nie znaleziono czytnika. Proszę sprawdzić czytnik i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Download Completed</source>
        <translation>Odczyt zakończony</translation>
    </message>
    <message>
        <source>Processing Data</source>
        <translation>Przetwarzanie danych</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>Gotowe…</translation>
    </message>
    <message>
        <source>Opening COM port...</source>
        <translation>Otwieranie portu COM…</translation>
    </message>
    <message>
        <source>Could Not Open Com </source>
        <translation>Nie można otworzyć: COM</translation>
    </message>
    <message>
        <source>Please try another COM port or check that the COM port is not in use by another program.</source>
        <translation>Proszę wybrać inny port COM lub sprawdzić, czy nie używa go inny program.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Looks for the docking station again</source>
        <translation>Ponownie szuka stacji dokującej</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignoruj</translation>
    </message>
    <message>
        <source>Checking Docking Station...</source>
        <translation>Szukanie stacji dokującej…</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatycznie</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>brak urządzenia</translation>
    </message>
    <message>
        <source>&amp;Open Report...</source>
        <translation>&amp;Otwórz raport…</translation>
    </message>
    <message>
        <source>Open the dialog of the selected report</source>
        <translation>Otwiera okno wybranego raportu</translation>
    </message>
    <message>
        <source>Report Name</source>
        <translation>Raport</translation>
    </message>
    <message>
        <source>Descri&amp;ption</source>
        <translation>O&amp;pis</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Tour / Exception Report</source>
        <translation>Raport z obchodu / odchyleń</translation>
    </message>
    <message>
        <source>Patrol Schedule</source>
        <translation>Harmonogram obchodu</translation>
    </message>
    <message>
        <source>Lists the times and places for a tour</source>
        <translation>Godziny i miejsca obchodu</translation>
    </message>
    <message>
        <source>Patrol Schedule Report</source>
        <translation>Harmonogram obchodu</translation>
    </message>
    <message>
        <source>Select the tour from which the tour schedule will be created.</source>
        <translation>Proszę wybrać obchód, dla którego ma powstać harmonogram.</translation>
    </message>
    <message>
        <source>Tour Description:</source>
        <translation>Opis obchodu:</translation>
    </message>
    <message>
        <source>Tour Tolerance:</source>
        <translation>Tolerancja:</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>min</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>Hardware List Report</source>
        <translation>Lista sprzętu</translation>
    </message>
    <message>
        <source>List all the defined buttons</source>
        <translation>Wszystkie zdefiniowane pastylki</translation>
    </message>
    <message>
        <source>Select the options for the hardware report</source>
        <translation>Proszę wybrać zawartość listy sprzętu</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Zdarzenie</translation>
    </message>
    <message>
        <source>E&amp;vent</source>
        <translation>&amp;Zdarzenie</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Punkty kontrolne</translation>
    </message>
    <message>
        <source>Incidents</source>
        <translation>Zdarzenia</translation>
    </message>
    <message>
        <source>Hardware Code</source>
        <translation>Kod sprzętowy</translation>
    </message>
    <message>
        <source>You must add at least one reader before this report can be used</source>
        <translation>Ten raport wymaga co najmniej jednego czytnika</translation>
    </message>
    <message>
        <source>A master adds tours on the Setup page.</source>
        <translation>Obchody dodaje administrator na stronie „Definicje”.</translation>
    </message>
    <message>
        <source>A master adds readers on the Setup page.</source>
        <translation>Czytniki dodaje administrator na stronie „Definicje”.</translation>
    </message>
    <message>
        <source>You must add at least one tour before this report can be used</source>
        <translation>Ten raport wymaga co najmniej jednego obchodu</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>You could not be logged in.  Closing the program now.</source>
        <translation>Logowanie nie powiodło się. Program zostanie zamknięty.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Raporty</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Definicje</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Button Name</source>
        <translation>Pastylka</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Nie można wyświetlić pomocy. Do tego programu nie dołączono pomocy.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Wardlock authors. Free software under the MIT License.</source>
        <translation>Copyright © 2026 autorzy programu Wardlock. Wolne oprogramowanie na licencji MIT.</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>The passwords do not match, please re-enter</source>
        <translation>Hasła nie są zgodne, proszę wpisać je ponownie</translation>
    </message>
    <message>
        <source>Opening Database...</source>
        <translation>Otwieranie bazy danych…</translation>
    </message>
    <message>
        <source>Compacting Database...</source>
        <translation>Kompaktowanie bazy danych…</translation>
    </message>
    <message>
        <source>Loading Application...</source>
        <translation>Ładowanie programu…</translation>
    </message>
    <message>
        <source>Initializing Online Help...</source>
        <translation>Przygotowywanie pomocy…</translation>
    </message>
    <message>
        <source>Error in creating new Tour</source>
        <translation>Błąd przy tworzeniu obchodu</translation>
    </message>
    <message>
        <source>The tour has no points. A master adds them on the Setup page.</source>
        <translation>Obchód nie ma punktów. Dodaje je administrator na stronie „Definicje”.</translation>
    </message>
    <message>
        <source>This tour does not exist any more, or it cannot be read.</source>
        <translation>Ten obchód już nie istnieje albo nie można go odczytać.</translation>
    </message>
    <message>
        <source>The settings cannot be saved. Changes you make now are lost when the program ends.</source>
        <translation>Nie można zapisać ustawień. Wprowadzone zmiany zostaną utracone po zamknięciu programu.</translation>
    </message>
    <message>
        <source>EARLY</source>
        <translation>ZA WCZEŚNIE</translation>
    </message>
    <message>
        <source>ON TIME</source>
        <translation>O CZASIE</translation>
    </message>
    <message>
        <source>LATE</source>
        <translation>ZA PÓŹNO</translation>
    </message>
    <message>
        <source>OUT OF SEQUENCE</source>
        <translation>ZŁA KOLEJNOŚĆ</translation>
    </message>
    <message>
        <source>%0:s points: %1:s</source>
        <translation>Punkty: %0:s (%1:s)</translation>
    </message>
    <message>
        <source>1 point: %0:s</source>
        <translation>Punkty: 1 (%0:s)</translation>
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
        <translation>o czasie: %0:s</translation>
    </message>
    <message>
        <source>%0:s early</source>
        <translation>za wcześnie: %0:s</translation>
    </message>
    <message>
        <source>%0:s late</source>
        <translation>za późno: %0:s</translation>
    </message>
    <message>
        <source>%0:s missing</source>
        <translation>brak: %0:s</translation>
    </message>
    <message>
        <source>NOT ON TOUR</source>
        <translation>POZA OBCHODEM</translation>
    </message>
    <message>
        <source>NO EXCEPTIONS</source>
        <translation>BRAK ODCHYLEŃ</translation>
    </message>
    <message>
        <source>EXCEPTION</source>
        <translation>ODCHYLENIE</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>BRAK</translation>
    </message>
    <message>
        <source>to</source>
        <translation>do</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>ZDARZENIE</translation>
    </message>
    <message>
        <source>Generating Report</source>
        <translation>Tworzenie raportu</translation>
    </message>
    <message>
        <source>Please wait, generating report (this may take a few minutes)</source>
        <translation>Proszę czekać, trwa tworzenie raportu (może to potrwać kilka minut)</translation>
    </message>
    <message>
        <source>Date Range:   From %0:s to %1:s</source>
        <translation>Okres:   od %0:s do %1:s</translation>
    </message>
    <message>
        <source>No Data on the report</source>
        <translation>Brak danych do raportu</translation>
    </message>
    <message>
        <source>See error.log for the reason.</source>
        <translation>Przyczyna jest podana w pliku error.log.</translation>
    </message>
    <message>
        <source>Please check these choices, and whether the reader has been downloaded.</source>
        <translation>Proszę sprawdzić te parametry. Czy czytnik został odczytany?</translation>
    </message>
    <message>
        <source>There is no data to show for these parameters</source>
        <translation>Brak danych dla podanych parametrów</translation>
    </message>
    <message>
        <source>The start date cannot be later than the end date</source>
        <translation>Data początkowa nie może być późniejsza niż końcowa</translation>
    </message>
    <message>
        <source>Reader Download Report</source>
        <translation>Raport odczytów czytnika</translation>
    </message>
    <message>
        <source>Lists details of each download to the PC for a reader</source>
        <translation>Szczegóły każdego odczytu czytnika</translation>
    </message>
    <message>
        <source>Download Time:</source>
        <translation>Czas odczytu:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Date / Time</source>
        <translation>Data / godzina</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Database Report</source>
        <translation>Raport z bazy danych</translation>
    </message>
    <message>
        <source>Raw data from database</source>
        <translation>Surowe dane z bazy danych</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Rodzaj</translation>
    </message>
    <message>
        <source>Print Date:</source>
        <translation>Data wydruku:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Strona</translation>
    </message>
    <message>
        <source>Tour Date:</source>
        <translation>Data obchodu:</translation>
    </message>
    <message>
        <source>Tour Name:</source>
        <translation>Obchód:</translation>
    </message>
    <message>
        <source>Tolerance (min):</source>
        <translation>Tolerancja (min):</translation>
    </message>
    <message>
        <source>Site/Location</source>
        <translation>Obiekt/punkt kontrolny</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>End Of Report</source>
        <translation>Koniec raportu</translation>
    </message>
    <message>
        <source>Show Events:</source>
        <translation>Ze zdarzeniami:</translation>
    </message>
    <message>
        <source>Tour Report</source>
        <translation>Raport z obchodu</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>Raport odchyleń</translation>
    </message>
    <message>
        <source>Reader ID</source>
        <translation>ID czytnika</translation>
    </message>
    <message>
        <source>Transfer progress</source>
        <translation>Postęp odczytu</translation>
    </message>
    <message>
        <source>Transfer progress in percent</source>
        <translation>Postęp odczytu w procentach</translation>
    </message>
    <message>
        <source>Do not remove the reader until download is complete.</source>
        <translation>Proszę nie wyjmować czytnika przed zakończeniem odczytu.</translation>
    </message>
    <message>
        <source>Docking Station</source>
        <translation>Stacja dokująca</translation>
    </message>
    <message>
        <source>Connection progress</source>
        <translation>Postęp łączenia</translation>
    </message>
    <message>
        <source>&amp;Download Data</source>
        <translation>&amp;Odczytaj dane</translation>
    </message>
    <message>
        <source>Stores the touches of the docked reader, then erases the reader</source>
        <translation>Zapisuje rejestracje umieszczonego czytnika, a potem czyści czytnik</translation>
    </message>
    <message>
        <source>Erases the docked reader without storing its touches</source>
        <translation>Czyści umieszczony czytnik bez zapisywania rejestracji</translation>
    </message>
    <message>
        <source>&amp;Erase Reader</source>
        <translation>&amp;Wyczyść czytnik</translation>
    </message>
    <message>
        <source>Download result</source>
        <translation>Wynik odczytu</translation>
    </message>
    <message>
        <source>Touches read</source>
        <translation>Odczytane rejestracje</translation>
    </message>
    <message>
        <source>Communications  Setup</source>
        <translation>Ustawienia połączenia</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation>&amp;Urządzenie:</translation>
    </message>
    <message>
        <source>The device for this port number</source>
        <translation>Urządzenie dla tego numeru portu</translation>
    </message>
    <message>
        <source>Leave the device set to Automatic unless the docking station uses another one.</source>
        <translation>Proszę pozostawić „Automatycznie”, chyba że stacja dokująca używa innego urządzenia.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>Tekst pomocy</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Szukaj:</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Spis treści</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nic nie znaleziono.</translation>
    </message>
    <message>
        <source>Help on This &amp;Page</source>
        <translation>Pomoc do tej st&amp;rony</translation>
    </message>
    <message>
        <source>The help is in English.</source>
        <translation>Pomoc jest w języku angielskim.</translation>
    </message>
    <message>
        <source>It is not a help file of this program.</source>
        <translation>To nie jest plik pomocy tego programu.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Język:</translation>
    </message>
    <message>
        <source>&amp;Master</source>
        <translation>A&amp;dministrator</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Użytkownik</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Hasło:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Tytuł strony</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Narzędzia</translation>
    </message>
    <message>
        <source>User &amp;Maintenance</source>
        <translation>&amp;Hasła</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Com &amp;Options...</source>
        <translation>Port &amp;COM…</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Język</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Spis treści</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Ikona programu</translation>
    </message>
    <message>
        <source>User Maintenance</source>
        <translation>Hasła</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>&amp;Powtórz hasło:</translation>
    </message>
    <message>
        <source>Report Parameters</source>
        <translation>Parametry raportu</translation>
    </message>
    <message>
        <source>Select the tour and start date to create the report</source>
        <translation>Proszę wybrać obchód i datę raportu</translation>
    </message>
    <message>
        <source>Choose the reader</source>
        <translation>Proszę wybrać czytnik</translation>
    </message>
    <message>
        <source>Select the date range and reader ID to create the Reader Download Report</source>
        <translation>Proszę wybrać okres i czytnik dla raportu odczytów</translation>
    </message>
    <message>
        <source>Reset Dates</source>
        <translation>Ustaw dzisiaj</translation>
    </message>
    <message>
        <source>Sets the range back to today</source>
        <translation>Przywraca okres na dzisiaj</translation>
    </message>
    <message>
        <source>Select the date range to create the report</source>
        <translation>Proszę wybrać okres raportu</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Gotowe okresy:</translation>
    </message>
    <message>
        <source>Only this event; the places that were touched before it are shown with it</source>
        <translation>Tylko to zdarzenie wraz z miejscami zarejestrowanymi przed nim</translation>
    </message>
    <message>
        <source>Only touches made while this site was the last one touched</source>
        <translation>Tylko rejestracje, przed którymi jako ostatni zarejestrowano ten obiekt</translation>
    </message>
    <message>
        <source>Sets the range and makes the report at once</source>
        <translation>Ustawia okres i od razu tworzy raport</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Ostatnie 7 dni</translation>
    </message>
    <message>
        <source>Last30 Days</source>
        <translation>Ostatnie 30 dni</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Obchód</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>&amp;Obchód</translation>
    </message>
    <message>
        <source>Tour &amp;Date</source>
        <translation>&amp;Data obchodu</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Czytnik</translation>
    </message>
    <message>
        <source>&amp;Reader</source>
        <translation>&amp;Czytnik</translation>
    </message>
    <message>
        <source>Report Options</source>
        <translation>Opcje raportu</translation>
    </message>
    <message>
        <source>Show &amp;All Tour Points</source>
        <translation>&amp;Wszystkie punkty obchodu</translation>
    </message>
    <message>
        <source>Only Show &amp;Exceptions</source>
        <translation>&amp;Tylko odchylenia</translation>
    </message>
    <message>
        <source>&amp;Include Events</source>
        <translation>&amp;Ze zdarzeniami</translation>
    </message>
    <message>
        <source>Also shows the incidents recorded at each point</source>
        <translation>Pokazuje też zdarzenia zarejestrowane przy każdym punkcie</translation>
    </message>
    <message>
        <source>&amp;Start Date</source>
        <translation>Data o&amp;d</translation>
    </message>
    <message>
        <source>Start &amp;Time</source>
        <translation>Począte&amp;k</translation>
    </message>
    <message>
        <source>&amp;End Date</source>
        <translation>Da&amp;ta do</translation>
    </message>
    <message>
        <source>En&amp;d Date</source>
        <translation>Data d&amp;o</translation>
    </message>
    <message>
        <source>End Ti&amp;me</source>
        <translation>Kon&amp;iec</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>No entry contains this.</source>
        <translation>Żadna pozycja nie zawiera tego tekstu.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Żadne</translation>
    </message>
    <message>
        <source>Incident Report</source>
        <translation>Raport zdarzeń</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers</source>
        <translation>Zdarzenia wg okresu i czytników</translation>
    </message>
    <message>
        <source>Incident Report with Sites</source>
        <translation>Raport zdarzeń z obiektami</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers with sites</source>
        <translation>Zdarzenia wg okresu i czytników, z obiektami</translation>
    </message>
    <message>
        <source>&amp;Readers:</source>
        <translation>&amp;Czytniki:</translation>
    </message>
    <message>
        <source>&amp;Events:</source>
        <translation>&amp;Zdarzenia:</translation>
    </message>
    <message>
        <source>Select Incident/s</source>
        <translation>Wybór zdarzeń</translation>
    </message>
    <message>
        <source>%0:s [%1:s] -- %2:s</source>
        <translation>%0:s [%1:s] -- %2:s</translation>
    </message>
    <message>
        <source>There must be at least one reader selected to create a report</source>
        <translation>Do raportu trzeba wybrać co najmniej jeden czytnik</translation>
    </message>
    <message>
        <source>An event was deleted meanwhile. Please open the dialog of the report again.</source>
        <translation>W międzyczasie usunięto jedno ze zdarzeń. Proszę ponownie otworzyć okno raportu.</translation>
    </message>
    <message>
        <source>No reader is defined.</source>
        <translation>Nie zdefiniowano żadnego czytnika.</translation>
    </message>
    <message>
        <source>No event is defined. A master adds event books on the Setup page.</source>
        <translation>Nie zdefiniowano żadnego zdarzenia. Książki zdarzeń dodaje administrator na stronie „Definicje”.</translation>
    </message>
    <message>
        <source>There must be at least one event selected to create a report</source>
        <translation>Do raportu trzeba wybrać co najmniej jedno zdarzenie</translation>
    </message>
    <message>
        <source>No incidents of this type were recorded</source>
        <translation>Nie zarejestrowano zdarzeń tego rodzaju</translation>
    </message>
    <message>
        <source>%0:s, %1:s,  %2:s</source>
        <translation>%0:s, %1:s,  %2:s</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Od:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Do:</translation>
    </message>
    <message>
        <source>No event has the code %0:s.</source>
        <translation>Żadne zdarzenie nie ma kodu %0:s.</translation>
    </message>
    <message>
        <source>There is no site named %0:s.</source>
        <translation>Nie ma obiektu o nazwie %0:s.</translation>
    </message>
    <message>
        <source>Select the date and other filters to create the Incident report</source>
        <translation>Proszę wybrać okres i filtry dla raportu zdarzeń</translation>
    </message>
    <message>
        <source>Incidents And Locations Report</source>
        <translation>Raport zdarzeń i punktów kontrolnych</translation>
    </message>
    <message>
        <source>Reader Name</source>
        <translation>Czytnik</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Zdarzenie</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>&amp;Podgląd wydruku</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Zapisz jako PDF</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Poprzednia strona</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Następna strona</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Numer strony</translation>
    </message>
    <message>
        <source>of</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Rzeczywisty rozmiar</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Szerokość strony</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Cała strona</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>The report could not be exported.</source>
        <translation>Nie udało się zapisać raportu.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Nie udało się wydrukować raportu.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Ustawienia czytnika</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>Sa&amp;me as PC Clock:</source>
        <translation>&amp;Jak zegar komputera:</translation>
    </message>
    <message>
        <source>C&amp;ustom Time</source>
        <translation>&amp;Inna godzina</translation>
    </message>
    <message>
        <source>Custom Time</source>
        <translation>Inna godzina</translation>
    </message>
    <message>
        <source>What the reader does at each touch</source>
        <translation>Co robi czytnik przy każdej rejestracji</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Data:</translation>
    </message>
    <message>
        <source>PC time</source>
        <translation>Godzina w komputerze</translation>
    </message>
    <message>
        <source>&amp;Automatically Set Time and Date to PC's settings when downloading Data</source>
        <translation>Przy &amp;odczycie ustawiaj datę i godzinę według komputera</translation>
    </message>
    <message>
        <source>Reader Options</source>
        <translation>Sygnały czytnika</translation>
    </message>
    <message>
        <source>&amp;Buzzer Enabled</source>
        <translation>&amp;Brzęczyk włączony</translation>
    </message>
    <message>
        <source>&amp;LED Enabled</source>
        <translation>Dioda &amp;LED włączona</translation>
    </message>
    <message>
        <source>&amp;Vibration Enabled</source>
        <translation>Wib&amp;racje włączone</translation>
    </message>
    <message>
        <source>Buzzer Duration</source>
        <translation>Czas brzęczyka</translation>
    </message>
    <message>
        <source>S&amp;hort</source>
        <translation>&amp;Krótki</translation>
    </message>
    <message>
        <source>L&amp;ong</source>
        <translation>Dłu&amp;gi</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Wyślij</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Uwaga:</translation>
    </message>
    <message>
        <source>If you select a custom date then this will only apply for one time</source>
        <translation>Inna data obowiązuje tylko ten jeden raz.</translation>
    </message>
    <message>
        <source>The automatic update feature only uses the PC's date and time</source>
        <translation>Automatyczne ustawianie korzysta zawsze z daty i godziny komputera.</translation>
    </message>
    <message>
        <source>You must select at least one of the reader options (Led, Buzzer or Vibration)</source>
        <translation>Trzeba wybrać co najmniej jeden sygnał czytnika (LED, brzęczyk lub wibracje)</translation>
    </message>
    <message>
        <source>Reader update successful</source>
        <translation>Czytnik został ustawiony</translation>
    </message>
    <message>
        <source>Reader update failed.  Please try again.</source>
        <translation>Nie udało się ustawić czytnika. Proszę spróbować ponownie.</translation>
    </message>
    <message>
        <source>The options were set, but the clock was not.</source>
        <translation>Sygnały zostały ustawione, ale zegar nie.</translation>
    </message>
    <message>
        <source>The clock was set, but the options were not.</source>
        <translation>Zegar został ustawiony, ale sygnały nie.</translation>
    </message>
    <message>
        <source>Add New Reader</source>
        <translation>Nowy czytnik</translation>
    </message>
    <message>
        <source>Add New Button</source>
        <translation>Nowa pastylka</translation>
    </message>
    <message>
        <source>Button ID:</source>
        <translation>Kod:</translation>
    </message>
    <message>
        <source>Button ID</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>This Reader ID already exists!</source>
        <translation>Ten czytnik jest już zdefiniowany!</translation>
    </message>
    <message>
        <source>That key is already used!</source>
        <translation>Ten kod jest już używany!</translation>
    </message>
    <message>
        <source>&amp;Read ID</source>
        <translation>O&amp;dczytaj ID</translation>
    </message>
    <message>
        <source>&amp;Manual Entry</source>
        <translation>Wpisz &amp;ręcznie</translation>
    </message>
    <message>
        <source>Manual Entry</source>
        <translation>Wpisz ręcznie</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nazwa</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Not in use yet</source>
        <translation>Jeszcze nieużywany</translation>
    </message>
    <message>
        <source>Reader ID Download Failed</source>
        <translation>Nie udało się odczytać ID czytnika</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name</source>
        <translation>Ta nazwa jest już używana. Proszę wpisać inną nazwę</translation>
    </message>
    <message>
        <source>You must enter a name for this item</source>
        <translation>Proszę wpisać nazwę</translation>
    </message>
    <message>
        <source>Enter the 6 digit button ID.  This is the last 6 digits visible on the front of the 'Dallas' Key. Valid characters are 0~9 and A~F.</source>
        <translation>Proszę wpisać 6-znakowy kod pastylki, czyli ostatnie 6 znaków widocznych na jej przedniej stronie. Dozwolone są znaki 0–9 i A–F.</translation>
    </message>
    <message>
        <source>Illegal Value</source>
        <translation>Nieprawidłowa wartość</translation>
    </message>
    <message>
        <source>Firmware Version is</source>
        <translation>Wersja oprogramowania:</translation>
    </message>
    <message>
        <source>Reader Firmware Version Test</source>
        <translation>Wersja oprogramowania czytnika</translation>
    </message>
    <message>
        <source>&amp;Reader Options</source>
        <translation>&amp;Ustawienia czytnika</translation>
    </message>
    <message>
        <source>Reader Firmware Version</source>
        <translation>Wersja oprogramowania czytnika</translation>
    </message>
    <message>
        <source>The reader did not report its firmware version.</source>
        <translation>Czytnik nie podał wersji oprogramowania.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station and read its ID.</source>
        <translation>Proszę umieścić czytnik w stacji dokującej i odczytać jego ID.</translation>
    </message>
    <message>
        <source>Touch the reader in the docking station with the new button, or enter its ID by hand.</source>
        <translation>Proszę dotknąć czytnika w stacji dokującej nową pastylką albo wpisać kod ręcznie.</translation>
    </message>
    <message>
        <source>Only the master may do this.</source>
        <translation>Tę czynność może wykonać tylko administrator.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Dodaj</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edytuj</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Tour &amp;Copy</source>
        <translation>&amp;Kopiuj obchód</translation>
    </message>
    <message>
        <source>Opens the selected row (double click)</source>
        <translation>Otwiera wybrany wiersz (dwukrotne kliknięcie)</translation>
    </message>
    <message>
        <source>Adds a new row</source>
        <translation>Dodaje nowy wiersz</translation>
    </message>
    <message>
        <source>Deletes the selected row (Del)</source>
        <translation>Usuwa wybrany wiersz (Del)</translation>
    </message>
    <message>
        <source>Makes a new tour as a copy of another</source>
        <translation>Tworzy nowy obchód jako kopię innego</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Definicje</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Obiekty</translation>
    </message>
    <message>
        <source>Event Books</source>
        <translation>Książki zdarzeń</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Obchody</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Czytniki</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Obiekt</translation>
    </message>
    <message>
        <source>S&amp;ite</source>
        <translation>O&amp;biekt</translation>
    </message>
    <message>
        <source>Event Book</source>
        <translation>Książka zdarzeń</translation>
    </message>
    <message>
        <source>User Group</source>
        <translation>Grupa użytkowników</translation>
    </message>
    <message>
        <source>Tour Name</source>
        <translation>Obchód</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Pastylki</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edycja:</translation>
    </message>
    <message>
        <source>Edit Reader</source>
        <translation>Edycja czytnika</translation>
    </message>
    <message>
        <source>Edit Time</source>
        <translation>Edycja czasu</translation>
    </message>
    <message>
        <source>&amp;Edit Time</source>
        <translation>Edytuj &amp;czas</translation>
    </message>
    <message>
        <source>&amp;Minutes since the previous point</source>
        <translation>&amp;Minuty od poprzedniego punktu</translation>
    </message>
    <message>
        <source>Select Tour to copy</source>
        <translation>Wybór obchodu do skopiowania</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nazwa:</translation>
    </message>
    <message>
        <source>Descri&amp;ption :</source>
        <translation>Op&amp;is:</translation>
    </message>
    <message>
        <source>Tour Start Ti&amp;me:</source>
        <translation>&amp;Początek obchodu:</translation>
    </message>
    <message>
        <source>To&amp;lerance (minutes):</source>
        <translation>&amp;Tolerancja (minuty):</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>Obi&amp;ekt:</translation>
    </message>
    <message>
        <source>A&amp;vailable Locations</source>
        <translation>Do&amp;stępne punkty kontrolne</translation>
    </message>
    <message>
        <source>Available Locations</source>
        <translation>Dostępne punkty kontrolne</translation>
    </message>
    <message>
        <source>Current T&amp;our Locations</source>
        <translation>Pun&amp;kty obchodu</translation>
    </message>
    <message>
        <source>Current Tour Locations</source>
        <translation>Punkty obchodu</translation>
    </message>
    <message>
        <source>&amp;Add -&gt;</source>
        <translation>D&amp;odaj -&gt;</translation>
    </message>
    <message>
        <source>&lt;- &amp;Remove</source>
        <translation>&lt;- &amp;Usuń</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>W &amp;górę</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>W &amp;dół</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>&amp;Wyczyść</translation>
    </message>
    <message>
        <source>Removes all points from the tour</source>
        <translation>Usuwa z obchodu wszystkie punkty</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>Customize Tour Sequence</source>
        <translation>Układanie obchodu</translation>
    </message>
    <message>
        <source>Location Name</source>
        <translation>Punkt kontrolny</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Punkt kontrolny</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Pu&amp;nkt kontrolny</translation>
    </message>
    <message>
        <source>Add New User</source>
        <translation>Nowy użytkownik</translation>
    </message>
    <message>
        <source>Add New Location</source>
        <translation>Nowy punkt kontrolny</translation>
    </message>
    <message>
        <source>Add New Event</source>
        <translation>Nowe zdarzenie</translation>
    </message>
    <message>
        <source>No Item is selected</source>
        <translation>Nic nie zaznaczono</translation>
    </message>
    <message>
        <source>No sites yet. A site is a place with location buttons. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Nie ma jeszcze obiektów. Obiekt to miejsce z punktami kontrolnymi. Nowy obiekt dodaje się przyciskiem „Dodaj”, a jego pastylki – przyciskiem „Edytuj”.</translation>
    </message>
    <message>
        <source>No event books yet. The buttons of an event book stand for incidents. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Nie ma jeszcze książek zdarzeń. Pastylki książki oznaczają zdarzenia. Nową książkę dodaje się przyciskiem „Dodaj”, a jej pastylki – przyciskiem „Edytuj”.</translation>
    </message>
    <message>
        <source>No tours yet. Press Add for a new one, then Edit to choose its locations.</source>
        <translation>Nie ma jeszcze obchodów. Nowy obchód dodaje się przyciskiem „Dodaj”, a jego punkty wybiera się przyciskiem „Edytuj”.</translation>
    </message>
    <message>
        <source>No readers yet. Put a reader into the docking station and press Add. Without a docking station no reader can be added.</source>
        <translation>Nie ma jeszcze czytników. Proszę umieścić czytnik w stacji dokującej i nacisnąć „Dodaj”. Bez stacji dokującej nie można dodać czytnika.</translation>
    </message>
    <message>
        <source>No buttons yet. Press Add, then touch the reader in the docking station with a button.</source>
        <translation>Nie ma jeszcze pastylek. Proszę nacisnąć „Dodaj”, a następnie dotknąć czytnika w stacji dokującej pastylką.</translation>
    </message>
    <message>
        <source>No buttons yet. A new button is read at the docking station, which is not connected.</source>
        <translation>Nie ma jeszcze pastylek. Nowe pastylki odczytuje się przy stacji dokującej. Stacja nie jest połączona.</translation>
    </message>
    <message>
        <source>This site has no location buttons yet. Add them on the Setup page: select the site and press Edit.</source>
        <translation>Ten obiekt nie ma jeszcze punktów kontrolnych. Dodaje się je na stronie „Definicje”: należy zaznaczyć obiekt i nacisnąć „Edytuj”.</translation>
    </message>
    <message>
        <source>The tour has no points yet. Select a location in the other list and press Add, in the order of the tour.</source>
        <translation>Obchód nie ma jeszcze punktów. Proszę zaznaczyć punkt kontrolny na drugiej liście i nacisnąć „Dodaj”, w kolejności obchodu.</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text (Ctrl+F).</source>
        <translation>Pokazuje tylko wiersze zawierające ten tekst (Ctrl+F).</translation>
    </message>
    <message>
        <source>A touch that is early or late by no more minutes than this counts as on time.</source>
        <translation>Rejestracja za wczesna lub spóźniona najwyżej o tyle minut jest uznawana za punktualną.</translation>
    </message>
    <message>
        <source>For the first point: the minutes since the start of the tour.</source>
        <translation>Dla pierwszego punktu: minuty od początku obchodu.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost.</source>
        <translation>Wpis „%0:s” zostanie utracony.</translation>
    </message>
    <message>
        <source>"%0:s" and its buttons will be lost.</source>
        <translation>Wpis „%0:s” i jego pastylki zostaną utracone.</translation>
    </message>
    <message>
        <source>"%0:s" and its points will be lost.</source>
        <translation>Obchód „%0:s” i jego punkty zostaną utracone.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost. Touches that are already downloaded are kept.</source>
        <translation>Wpis „%0:s” zostanie utracony. Odczytane wcześniej rejestracje zostaną zachowane.</translation>
    </message>
    <message>
        <source>The name could not be saved. Nothing was changed.</source>
        <translation>Nie udało się zapisać nazwy. Niczego nie zmieniono.</translation>
    </message>
    <message>
        <source>The password is empty. Anyone could log in without one.</source>
        <translation>Hasło jest puste. Każdy mógłby zalogować się bez hasła.</translation>
    </message>
    <message>
        <source>Do you want to save it?</source>
        <translation>Czy je zapisać?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Czy na pewno usunąć tę pozycję?</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name.</source>
        <translation>Ta nazwa jest już używana. Proszę wpisać inną nazwę.</translation>
    </message>
    <message>
        <source>You must enter a name for this group</source>
        <translation>Proszę wpisać nazwę tej grupy</translation>
    </message>
    <message>
        <source>A name or description cannot contain line breaks or other control characters.</source>
        <translation>Nazwa ani opis nie mogą zawierać podziałów wiersza ani innych znaków sterujących.</translation>
    </message>
    <message>
        <source>The tour could not be saved. Nothing was changed.</source>
        <translation>Nie udało się zapisać obchodu. Niczego nie zmieniono.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Discard them?</source>
        <translation>Zmiany nie zostały zapisane. Czy je odrzucić?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete it?</source>
        <translation>Czy na pewno usunąć tę grupę?</translation>
    </message>
    <message>
        <source>The selected group contains sub-items</source>
        <translation>Zaznaczona grupa zawiera pastylki.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this reader?</source>
        <translation>Czy na pewno usunąć ten czytnik?</translation>
    </message>
    <message>
        <source>You must add at least one location before you can define a tour</source>
        <translation>Przed utworzeniem obchodu trzeba dodać co najmniej jeden punkt kontrolny</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this tour?</source>
        <translation>Czy na pewno usunąć ten obchód?</translation>
    </message>
    <message>
        <source>The selected Tour contains data.</source>
        <translation>Zaznaczony obchód zawiera punkty.</translation>
    </message>
    <message>
        <source>Cannot find any Tour Points to copy</source>
        <translation>Obchód nie ma punktów do skopiowania</translation>
    </message>
    <message>
        <source>Cannot assign two sequential tour points with the same location</source>
        <translation>Ten sam punkt kontrolny nie może wystąpić dwa razy z rzędu</translation>
    </message>
    <message>
        <source>The tolerance value can only range from 0 to 59 minutes</source>
        <translation>Tolerancja musi wynosić od 0 do 59 minut</translation>
    </message>
    <message>
        <source>The total tour time can only range from 0 to 1439 minutes</source>
        <translation>Cały obchód może trwać najwyżej 1439 minut</translation>
    </message>
    <message>
        <source>Only valid numbers from 0 to 1439 can be entered</source>
        <translation>Dozwolone są tylko liczby całkowite od 0 do 1439</translation>
    </message>
    <message>
        <source>The docking station is no longer connected. Enter the ID by hand, or go to the home page to connect again.</source>
        <translation>Stacja dokująca nie jest już połączona. Proszę wpisać kod ręcznie albo przejść na stronę startową, aby połączyć ponownie.</translation>
    </message>
    <message>
        <source>&amp;Archive Events</source>
        <translation>&amp;Archiwizacja rejestracji</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Kopia zapasowa</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Przywracanie kopii</translation>
    </message>
    <message>
        <source>Company &amp;Info</source>
        <translation>Dane &amp;firmy</translation>
    </message>
    <message>
        <source>&amp;About </source>
        <translation>&amp;O programie </translation>
    </message>
    <message>
        <source>Company Info</source>
        <translation>Dane firmy</translation>
    </message>
    <message>
        <source>These lines are printed at the head of each report. After the next start, only the first 50 characters of a line are printed.</source>
        <translation>Te wiersze są drukowane na początku każdego raportu. Po następnym uruchomieniu drukowanych jest tylko pierwszych 50 znaków wiersza.</translation>
    </message>
    <message>
        <source>Line &amp;1:</source>
        <translation>Wiersz &amp;1:</translation>
    </message>
    <message>
        <source>Line &amp;2:</source>
        <translation>Wiersz &amp;2:</translation>
    </message>
    <message>
        <source>Line &amp;3:</source>
        <translation>Wiersz &amp;3:</translation>
    </message>
    <message>
        <source>Line &amp;4:</source>
        <translation>Wiersz &amp;4:</translation>
    </message>
    <message>
        <source>The company info cannot be saved. This file cannot be written:</source>
        <translation>Nie można zapisać danych firmy. W tym pliku nie można zapisywać:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>You may use, change and pass on this program, as long as the text of the License stays with it.</source>
        <translation>Ten program wolno używać, zmieniać i przekazywać dalej, o ile towarzyszy mu tekst licencji.</translation>
    </message>
    <message>
        <source>It comes without any warranty.</source>
        <translation>Program jest dostarczany bez żadnej gwarancji.</translation>
    </message>
    <message>
        <source>For a description of the program, choose Help, Contents.</source>
        <translation>Opis programu znajduje się w menu Pomoc, Spis treści.</translation>
    </message>
    <message>
        <source>If something does not work, report it to the person who looks after this installation. Give the version and the build shown above, and send this file:</source>
        <translation>Jeśli coś nie działa, proszę zgłosić to osobie, która opiekuje się tą instalacją, podać wersję i kompilację (Build) widoczne powyżej oraz przesłać ten plik:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>WK3_ENG.HLP</source>
        <translation>WK3_ENG.HLP</translation>
    </message>
    <message>
        <source>This folder does not exist. Please choose another one.</source>
        <translation>Ten folder nie istnieje. Proszę wybrać inny.</translation>
    </message>
    <message>
        <source>A file name can have at most 100 characters.</source>
        <translation>Nazwa pliku może mieć najwyżej 100 znaków.</translation>
    </message>
    <message>
        <source>Select backup destination</source>
        <translation>Wybór miejsca kopii zapasowej</translation>
    </message>
    <message>
        <source>Database Files (*.mdb)</source>
        <translation>Pliki bazy danych (*.mdb)</translation>
    </message>
    <message>
        <source>That filename is already in use. Please choose another filename</source>
        <translation>Ta nazwa pliku jest już używana. Proszę wybrać inną nazwę pliku</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Kopia zapasowa</translation>
    </message>
    <message>
        <source>The database is being copied and checked.</source>
        <translation>Trwa kopiowanie i sprawdzanie bazy danych.</translation>
    </message>
    <message>
        <source>Successfully copied the database to :</source>
        <translation>Bazę danych skopiowano do:</translation>
    </message>
    <message>
        <source>The file was changed while it was read.</source>
        <translation>Plik zmienił się w czasie odczytu.</translation>
    </message>
    <message>
        <source>The copy is damaged: %0:s</source>
        <translation>Kopia jest uszkodzona: %0:s</translation>
    </message>
    <message>
        <source>The copy does not have the rows of the database.</source>
        <translation>Kopia nie zawiera tych samych wierszy co baza danych.</translation>
    </message>
    <message>
        <source>The database was not copied.</source>
        <translation>Baza danych nie została skopiowana.</translation>
    </message>
    <message>
        <source>The database itself is damaged.</source>
        <translation>Sama baza danych jest uszkodzona.</translation>
    </message>
    <message>
        <source>The program itself uses this file. Please choose another filename.</source>
        <translation>Tego pliku używa sam program. Proszę wybrać inną nazwę pliku.</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>Plik lub jego folder nie istnieje.</translation>
    </message>
    <message>
        <source>Removed:</source>
        <translation>Usunięto:</translation>
    </message>
    <message>
        <source>Not removed:</source>
        <translation>Nie usunięto:</translation>
    </message>
    <message>
        <source>A program was killed while it wrote to this file. Its journal is still beside it.</source>
        <translation>Program został przerwany podczas zapisu do tego pliku. Obok nadal znajduje się jego dziennik.</translation>
    </message>
    <message>
        <source>You do not have permission to read this file.</source>
        <translation>Brak uprawnień do odczytu tego pliku.</translation>
    </message>
    <message>
        <source>It is not a database of this program, or it is damaged.</source>
        <translation>To nie jest baza danych tego programu albo jest uszkodzona.</translation>
    </message>
    <message>
        <source>The database is damaged:</source>
        <translation>Baza danych jest uszkodzona:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Brakuje:</translation>
    </message>
    <message>
        <source>Buttons whose group does not exist:</source>
        <translation>Pastylki, których grupa nie istnieje:</translation>
    </message>
    <message>
        <source>Tour points whose tour does not exist:</source>
        <translation>Punkty, których obchód nie istnieje:</translation>
    </message>
    <message>
        <source>Tour points whose button does not exist:</source>
        <translation>Punkty, których pastylka nie istnieje:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Zapisz jako</translation>
    </message>
    <message>
        <source>Comma Delimited Text (*.csv)</source>
        <translation>Tekst rozdzielany przecinkami (*.csv)</translation>
    </message>
    <message>
        <source>Archive Events</source>
        <translation>Archiwizacja rejestracji</translation>
    </message>
    <message>
        <source>Choose the first and the last day. Their events are moved into a file and deleted from the database. They cannot be brought back from the file.</source>
        <translation>Proszę wybrać pierwszy i ostatni dzień. Rejestracje z tego okresu zostaną przeniesione do pliku i usunięte z bazy danych. Z pliku nie można ich przywrócić.</translation>
    </message>
    <message>
        <source>Warning: This action will permanently delete the events from the database.</source>
        <translation>Ostrzeżenie: rejestracje zostaną trwale usunięte z bazy danych.</translation>
    </message>
    <message>
        <source>Select location of backup database file</source>
        <translation>Wybór kopii zapasowej bazy danych</translation>
    </message>
    <message>
        <source>That filename cannot be found. Please choose another filename</source>
        <translation>Nie znaleziono tego pliku. Proszę wybrać inny plik</translation>
    </message>
    <message>
        <source>This file is the database itself. Please choose a backup of it.</source>
        <translation>Ten plik to sama baza danych. Proszę wybrać jej kopię zapasową.</translation>
    </message>
    <message>
        <source>Warning: This action will delete the existing database. You will loose ALL data in the existing database.</source>
        <translation>Ostrzeżenie: istniejąca baza danych zostanie usunięta. WSZYSTKIE jej dane zostaną utracone.</translation>
    </message>
    <message>
        <source>Are you sure you want to continue?</source>
        <translation>Czy na pewno kontynuować?</translation>
    </message>
    <message>
        <source>There are no stored events within the dates you entered.</source>
        <translation>W tym okresie nie zapisano żadnych rejestracji.</translation>
    </message>
    <message>
        <source>File Save Error: Archive Not Saved.  Please Try again.</source>
        <translation>Błąd zapisu pliku: archiwum nie zostało zapisane. Proszę spróbować ponownie.</translation>
    </message>
    <message>
        <source>Events Archived Successfully</source>
        <translation>Rejestracje zostały zarchiwizowane</translation>
    </message>
    <message>
        <source>Number of Events =</source>
        <translation>Liczba rejestracji:</translation>
    </message>
    <message>
        <source>FileName = </source>
        <translation>Plik:</translation>
    </message>
    <message>
        <source>The events are written to the file and then deleted from the database.</source>
        <translation>Rejestracje zostaną zapisane w pliku, a następnie usunięte z bazy danych.</translation>
    </message>
    <message>
        <source>%0:s events were written, but the database deleted %1:s. Nothing was archived.</source>
        <translation>Rejestracje zapisane w pliku: %0:s, usunięte z bazy danych: %1:s. Liczby te są różne, dlatego niczego nie zarchiwizowano.</translation>
    </message>
    <message>
        <source>The events were written to %0:s, but they are still in the database: %1:s</source>
        <translation>Rejestracje zapisano w pliku %0:s, ale nadal są w bazie danych: %1:s</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywracanie</translation>
    </message>
    <message>
        <source>The backup is being copied and checked.</source>
        <translation>Trwa kopiowanie i sprawdzanie kopii zapasowej.</translation>
    </message>
    <message>
        <source>The database is in use. Waiting until it is free.</source>
        <translation>Baza danych jest używana. Trwa oczekiwanie na jej zwolnienie.</translation>
    </message>
    <message>
        <source>Successfully copied the database</source>
        <translation>Bazę danych skopiowano</translation>
    </message>
    <message>
        <source>Warning : The program will now close.</source>
        <translation>Ostrzeżenie: program zostanie teraz zamknięty.</translation>
    </message>
    <message>
        <source>Please restart the program to continue.</source>
        <translation>Aby kontynuować, proszę uruchomić program ponownie.</translation>
    </message>
    <message>
        <source>The database was not restored. It is as it was before.</source>
        <translation>Baza danych nie została przywrócona. Pozostała bez zmian.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program.</source>
        <translation>Wybrany plik nie jest bazą danych tego programu.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program, its password is different, or it is damaged.</source>
        <translation>Wybrany plik nie jest bazą danych tego programu, ma inne hasło albo jest uszkodzony.</translation>
    </message>
    <message>
        <source>The chosen file is not a complete database of this program. It lacks %0:s.</source>
        <translation>Wybrany plik nie jest kompletną bazą danych tego programu. Brakuje: %0:s.</translation>
    </message>
    <message>
        <source>The chosen file is damaged: %0:s</source>
        <translation>Wybrany plik jest uszkodzony: %0:s</translation>
    </message>
    <message>
        <source>Another program has used the database meanwhile. Please try again.</source>
        <translation>W międzyczasie inny program użył bazy danych. Proszę spróbować ponownie.</translation>
    </message>
    <message>
        <source>The database was restored, but the disk reported an error. Please check it.</source>
        <translation>Bazę danych przywrócono, ale dysk zgłosił błąd. Proszę sprawdzić dysk.</translation>
    </message>
</context>
</TS>
