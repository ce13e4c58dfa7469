<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Wardlock</name>
    <message>
        <source>The database is damaged. Some of its events can no longer be read.</source>
        <translation>Die Datenbank ist beschädigt. Ein Teil der Erfassungen ist nicht mehr lesbar.</translation>
    </message>
    <message>
        <source>Please restore a backup. Until then, no reader is erased.</source>
        <translation>Bitte eine Sicherung wiederherstellen. Bis dahin wird kein Leser geleert.</translation>
    </message>
    <message>
        <source>Another program is using it.</source>
        <translation>Ein anderes Programm benutzt die Datenbank.</translation>
    </message>
    <message>
        <source>It is in use by %0:s (process %1:s).</source>
        <translation>Die Datenbank wird von %0:s benutzt (Prozess %1:s).</translation>
    </message>
    <message>
        <source>It is in use on computer %2:s by %0:s (process %1:s).</source>
        <translation>Die Datenbank wird auf dem Computer %2:s von %0:s benutzt (Prozess %1:s).</translation>
    </message>
    <message>
        <source>The touches are stored, but the disk reported an error. The reader was not erased.</source>
        <translation>Die Erfassungen sind gespeichert, aber der Datenträger meldete einen Fehler. Der Leser wurde nicht geleert.</translation>
    </message>
    <message>
        <source>The disk or the network reported an error. Please check it and try again.</source>
        <translation>Der Datenträger oder das Netz meldete einen Fehler. Bitte prüfen und noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The database is damaged. The reader was not erased.</source>
        <translation>Die Datenbank ist beschädigt. Der Leser wurde nicht geleert.</translation>
    </message>
    <message>
        <source>A name or description can have at most 100 characters.</source>
        <translation>Ein Name oder eine Beschreibung darf höchstens 100 Zeichen haben.</translation>
    </message>
    <message>
        <source>A password cannot contain line breaks or other control characters.</source>
        <translation>Ein Kennwort darf keine Zeilenumbrüche oder andere Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>The report could not be created. See error.log for the reason.</source>
        <translation>Der Bericht konnte nicht erstellt werden. Der Grund steht in der Datei error.log.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The folder %0:s does not exist. Please create it, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Der Ordner %0:s ist nicht vorhanden. Bitte anlegen oder in WARDLOCK_HOME einen anderen angeben.</translation>
    </message>
    <message>
        <source>You may not write to the folder %0:s. Please ask for permission, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Für den Ordner %0:s fehlt das Schreibrecht. Bitte das Recht einrichten lassen oder in WARDLOCK_HOME einen anderen Ordner angeben.</translation>
    </message>
    <message>
        <source>There is no database yet. Please start the station once to create it.</source>
        <translation>Es gibt noch keine Datenbank. Bitte das Programm Wardlock einmal starten: Es legt eine an.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this file or its folder.</source>
        <translation>Für diese Datei oder ihren Ordner fehlt das Schreibrecht.</translation>
    </message>
    <message>
        <source>Its password is different, or it is damaged. If it is damaged, please restore a backup.</source>
        <translation>Die Datei hat ein anderes Kennwort oder ist beschädigt. Ist sie beschädigt, bitte eine Sicherung wiederherstellen.</translation>
    </message>
    <message>
        <source>It is damaged. Please restore a backup.</source>
        <translation>Die Datei ist beschädigt. Bitte eine Sicherung wiederherstellen.</translation>
    </message>
    <message>
        <source>A journal next to the database did not belong to it. The database was opened without this journal.</source>
        <translation>Neben der Datenbank lag ein Journal, das nicht zu ihr gehörte. Die Datenbank wurde ohne dieses Journal geöffnet.</translation>
    </message>
    <message>
        <source>It was renamed to:</source>
        <translation>Es wurde umbenannt in:</translation>
    </message>
    <message>
        <source>The User Name / Password are incorrect. Please try again.</source>
        <translation>Benutzer oder Kennwort ist falsch. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Could not open the com port.</source>
        <translation>Der COM-Anschluss konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Check settings and try again.</source>
        <translation>Bitte die Einstellungen prüfen und noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The master chooses the port under Tools, Com Options.</source>
        <translation>Der Einsatzleiter wählt den Anschluss unter Extras, COM-Anschluss.</translation>
    </message>
    <message>
        <source>Is the docking station plugged in, and is this its device?</source>
        <translation>Ist die Dockingstation angeschlossen, und ist dies ihr Gerät?</translation>
    </message>
    <message>
        <source>Could not connect to the docking station.</source>
        <translation>Keine Verbindung zur Dockingstation.</translation>
    </message>
    <message>
        <source>Check hardware and settings and try again.</source>
        <translation>Bitte Gerät und Einstellungen prüfen und noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Working in Offline Mode</source>
        <translation>Arbeiten ohne Dockingstation</translation>
    </message>
    <message>
        <source>Docking Station : OK</source>
        <translation>Dockingstation: OK</translation>
    </message>
    <message>
        <source>Docking Station : Not Detected</source>
        <translation>Dockingstation: nicht gefunden</translation>
    </message>
    <message>
        <source>%0:s is gone. Plug it in again.</source>
        <translation>%0:s ist nicht mehr angeschlossen. Bitte wieder anschließen.</translation>
    </message>
    <message>
        <source>Last download</source>
        <translation>Letztes Auslesen</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keines</translation>
    </message>
    <message>
        <source>Tours of the last 24 hours</source>
        <translation>Rundgänge der letzten 24 Stunden</translation>
    </message>
    <message>
        <source>Click a tour, or press Enter, to open its report.</source>
        <translation>Ein Klick auf einen Rundgang oder die Eingabetaste öffnet den Bericht dazu.</translation>
    </message>
    <message>
        <source>No tour was due.</source>
        <translation>Es war kein Rundgang fällig.</translation>
    </message>
    <message>
        <source>Readers and tours are not set up yet. A master does this on the Setup page.</source>
        <translation>Leser und Rundgänge sind noch nicht eingerichtet. Das macht der Einsatzleiter auf der Seite „Einrichtung“.</translation>
    </message>
    <message>
        <source>not downloaded or not walked</source>
        <translation>nicht ausgelesen oder nicht gegangen</translation>
    </message>
    <message>
        <source>On time</source>
        <translation>Pünktlich</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Zu früh</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Zu spät</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlend</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Define a site</source>
        <translation>Ein Objekt anlegen</translation>
    </message>
    <message>
        <source>Add the buttons of the site</source>
        <translation>Die Chips des Objekts anlegen</translation>
    </message>
    <message>
        <source>Add a reader</source>
        <translation>Einen Leser anlegen</translation>
    </message>
    <message>
        <source>Plan a tour</source>
        <translation>Einen Rundgang planen</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <source>The touches could not be stored. The reader was not erased.</source>
        <translation>Die Erfassungen konnten nicht gespeichert werden. Der Leser wurde nicht geleert.</translation>
    </message>
    <message>
        <source>Touches stored: </source>
        <translation>Gespeicherte Erfassungen: </translation>
    </message>
    <message>
        <source>The reader was taken out of the station. It was not erased.</source>
        <translation>Der Leser wurde aus der Dockingstation genommen. Er wurde nicht geleert.</translation>
    </message>
    <message>
        <source>Another reader is in the station. It was not erased.</source>
        <translation>In der Dockingstation steckt ein anderer Leser. Er wurde nicht geleert.</translation>
    </message>
    <message>
        <source>The reader has been used since it was read. It was not erased.</source>
        <translation>Der Leser wurde seit dem Auslesen benutzt. Er wurde nicht geleert.</translation>
    </message>
    <message>
        <source>The reader's memory continues after its end mark. The touches that were read are stored, but the reader was not erased.</source>
        <translation>Im Speicher des Lesers stehen nach der Endmarke weitere Daten. Die ausgelesenen Erfassungen sind gespeichert, der Leser wurde aber nicht geleert.</translation>
    </message>
    <message>
        <source>The reader holds a different number of records than it reports. The touches that were read are stored, but the reader was not erased.</source>
        <translation>Die Zahl der Datensätze im Leser stimmt nicht mit der Zahl überein, die er meldet. Die ausgelesenen Erfassungen sind gespeichert, der Leser wurde aber nicht geleert.</translation>
    </message>
    <message>
        <source>The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It was not set.</source>
        <translation>Die Uhr des Lesers kann nur auf ein Datum vom 1. Januar 2000 bis zum 6. Juni 2179 gestellt werden. Sie wurde nicht gestellt.</translation>
    </message>
    <message>
        <source>Reader Memory NOT erased!</source>
        <translation>Leserspeicher NICHT geleert!</translation>
    </message>
    <message>
        <source>Reader Memory erased</source>
        <translation>Leserspeicher geleert</translation>
    </message>
    <message>
        <source>Reader ID:</source>
        <translation>Leser-Nr.:</translation>
    </message>
    <message>
        <source>KV-88 Wardlock Reports</source>
        <translation>KV-88 Wardlock Berichte</translation>
    </message>
    <message>
        <source>%0:s - Version %1:s</source>
        <translation>%0:s - Version %1:s</translation>
    </message>
    <message>
        <source>Download Failed</source>
        <translation>Auslesen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Remove the cause, and then download the reader again.</source>
        <translation>Bitte die Ursache beseitigen und den Leser dann noch einmal auslesen.</translation>
    </message>
    <message>
        <source>All touches are still in the reader.</source>
        <translation>Alle Erfassungen sind noch im Leser.</translation>
    </message>
    <message>
        <source>Download Successful</source>
        <translation>Auslesen erfolgreich</translation>
    </message>
    <message>
        <source>Reports of the tours in this download</source>
        <translation>Berichte zu den ausgelesenen Rundgängen</translation>
    </message>
    <message>
        <source>More on the Reports page: %0:s</source>
        <translation>Weitere auf der Seite „Berichte“: %0:s</translation>
    </message>
    <message>
        <source>Data Readings = </source>
        <translation>Erfassungen: </translation>
    </message>
    <message>
        <source>The Reader was empty</source>
        <translation>Der Leser war leer</translation>
    </message>
    <message>
        <source>Reader Clock update failed.  Please try again.</source>
        <translation>Die Uhr des Lesers konnte nicht gestellt werden. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The download itself is complete. The clock can be set with Reader Options in the Tools menu.</source>
        <translation>Das Auslesen selbst ist abgeschlossen. Die Uhr lässt sich im Menü Extras unter „Leser einstellen“ stellen.</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the reader? </source>
        <translation>Soll der Speicher des Lesers wirklich geleert werden? </translation>
    </message>
    <message>
        <source>The reader that was downloaded last:</source>
        <translation>Zuletzt ausgelesener Leser:</translation>
    </message>
    <message>
        <source>Touches that have not been downloaded yet will be lost.</source>
        <translation>Erfassungen, die noch nicht ausgelesen sind, gehen verloren.</translation>
    </message>
    <message>
        <source>Reader Erase Failed.  Try again?</source>
        <translation>Der Leser konnte nicht geleert werden. Noch einmal versuchen?</translation>
    </message>
    <message>
        <source>As long as the reader keeps its touches, each further download stores them again.</source>
        <translation>Solange der Leser seine Erfassungen behält, speichert jedes weitere Auslesen sie noch einmal.</translation>
    </message>
    <message>
        <source>Reader Erased</source>
        <translation>Leser geleert</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Download Error</source>
        <translation>Fehler beim Auslesen</translation>
    </message>
    <message>
        <source>The names of the buttons could not be read from the database. See error.log for the reason.</source>
        <translation>Die Namen der Chips konnten nicht aus der Datenbank gelesen werden. Der Grund steht in der Datei error.log.</translation>
    </message>
    <message>
        <source>What the reader sent was not complete or not valid. Please try again.</source>
        <translation>Die Daten des Lesers waren unvollständig oder ungültig. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The connection to the docking station was lost. Check its cable and try again.</source>
        <translation>Die Verbindung zur Dockingstation ist abgebrochen. Bitte das Kabel prüfen und noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The docking station could not read the reader. Take it out, put it in again, and try once more.</source>
        <translation>Die Dockingstation konnte den Leser nicht auslesen. Bitte herausnehmen, wieder einsetzen und noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station so that it sits firmly.</source>
        <translation>Bitte den Leser fest in die Dockingstation einsetzen.</translation>
    </message>
    <message>
        <source>The reader stopped answering. Leave it in the docking station until the download is complete, and try again.</source>
        <translation>Der Leser antwortet nicht mehr. Bitte bis zum Ende des Auslesens in der Dockingstation lassen und noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Downloading data from reader</source>
        <translation>Der Leser wird ausgelesen</translation>
    </message>
    <message>
        <source>Reader not detected. Check reader and try again.</source>
        <translation>Kein Leser gefunden. Bitte den Leser prüfen und noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Download Completed</source>
        <translation>Auslesen beendet</translation>
    </message>
    <message>
        <source>Processing Data</source>
        <translation>Daten werden verarbeitet</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>Bereit…</translation>
    </message>
    <message>
        <source>Opening COM port...</source>
        <translation>COM-Anschluss wird geöffnet…</translation>
    </message>
    <message>
        <source>Could Not Open Com </source>
        <translation>Nicht zu öffnen: COM</translation>
    </message>
    <message>
        <source>Please try another COM port or check that the COM port is not in use by another program.</source>
        <translation>Bitte einen anderen COM-Anschluss wählen oder prüfen, ob ein anderes Programm ihn benutzt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Looks for the docking station again</source>
        <translation>Sucht die Dockingstation noch einmal</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Checking Docking Station...</source>
        <translation>Dockingstation wird gesucht…</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>kein Gerät</translation>
    </message>
    <message>
        <source>&amp;Open Report...</source>
        <translation>Bericht ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open the dialog of the selected report</source>
        <translation>Das Fenster des gewählten Berichts öffnen</translation>
    </message>
    <message>
        <source>Report Name</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Descri&amp;ption</source>
        <translation>Beschreib&amp;ung</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Tour / Exception Report</source>
        <translation>Rundgangs-/Abweichungsbericht</translation>
    </message>
    <message>
        <source>Patrol Schedule</source>
        <translation>Rundgangsplan</translation>
    </message>
    <message>
        <source>Lists the times and places for a tour</source>
        <translation>Zeiten und Orte eines Rundgangs</translation>
    </message>
    <message>
        <source>Patrol Schedule Report</source>
        <translation>Rundgangsplan</translation>
    </message>
    <message>
        <source>Select the tour from which the tour schedule will be created.</source>
        <translation>Den Rundgang wählen, für den der Plan erstellt wird.</translation>
    </message>
    <message>
        <source>Tour Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Tour Tolerance:</source>
        <translation>Toleranz:</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Hardware List Report</source>
        <translation>Hardwareliste</translation>
    </message>
    <message>
        <source>List all the defined buttons</source>
        <translation>Alle angelegten Chips</translation>
    </message>
    <message>
        <source>Select the options for the hardware report</source>
        <translation>Auswählen, was die Hardwareliste enthält</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>E&amp;vent</source>
        <translation>Ere&amp;ignis</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Kontrollpunkte</translation>
    </message>
    <message>
        <source>Incidents</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Hardware Code</source>
        <translation>Hardware-Code</translation>
    </message>
    <message>
        <source>You must add at least one reader before this report can be used</source>
        <translation>Für diesen Bericht muss mindestens ein Leser angelegt sein</translation>
    </message>
    <message>
        <source>A master adds tours on the Setup page.</source>
        <translation>Rundgänge legt der Einsatzleiter auf der Seite „Einrichtung“ an.</translation>
    </message>
    <message>
        <source>A master adds readers on the Setup page.</source>
        <translation>Leser legt der Einsatzleiter auf der Seite „Einrichtung“ an.</translation>
    </message>
    <message>
        <source>You must add at least one tour before this report can be used</source>
        <translation>Für diesen Bericht muss mindestens ein Rundgang angelegt sein</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>You could not be logged in.  Closing the program now.</source>
        <translation>Die Anmeldung ist nicht gelungen. Das Programm wird beendet.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Auslesen</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einrichtung</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
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
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Die Hilfe kann nicht gezeigt werden. Zu diesem Programm gehört keine Hilfe.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Wardlock authors. Free software under the MIT License.</source>
        <translation>Copyright © 2026 die Autoren von Wardlock. Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Einsatzleiter</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>The passwords do not match, please re-enter</source>
        <translation>Die Kennwörter stimmen nicht überein. Bitte neu eingeben</translation>
    </message>
    <message>
        <source>Opening Database...</source>
        <translation>Datenbank wird geöffnet…</translation>
    </message>
    <message>
        <source>Compacting Database...</source>
        <translation>Datenbank wird komprimiert…</translation>
    </message>
    <message>
        <source>Loading Application...</source>
        <translation>Programm wird geladen…</translation>
    </message>
    <message>
        <source>Initializing Online Help...</source>
        <translation>Hilfe wird vorbereitet…</translation>
    </message>
    <message>
        <source>Error in creating new Tour</source>
        <translation>Fehler beim Anlegen des Rundgangs</translation>
    </message>
    <message>
        <source>The tour has no points. A master adds them on the Setup page.</source>
        <translation>Der Rundgang hat keine Punkte. Der Einsatzleiter legt sie auf der Seite „Einrichtung“ fest.</translation>
    </message>
    <message>
        <source>This tour does not exist any more, or it cannot be read.</source>
        <translation>Diesen Rundgang gibt es nicht mehr, oder er ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The settings cannot be saved. Changes you make now are lost when the program ends.</source>
        <translation>Die Einstellungen können nicht gespeichert werden. Änderungen gehen beim Beenden verloren.</translation>
    </message>
    <message>
        <source>EARLY</source>
        <translation>ZU FRÜH</translation>
    </message>
    <message>
        <source>ON TIME</source>
        <translation>PÜNKTLICH</translation>
    </message>
    <message>
        <source>LATE</source>
        <translation>ZU SPÄT</translation>
    </message>
    <message>
        <source>OUT OF SEQUENCE</source>
        <translation>AUSSER DER REIHE</translation>
    </message>
    <message>
        <source>%0:s points: %1:s</source>
        <translation>%0:s Punkte: %1:s</translation>
    </message>
    <message>
        <source>1 point: %0:s</source>
        <translation>1 Punkt: %0:s</translation>
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
        <translation>%0:s pünktlich</translation>
    </message>
    <message>
        <source>%0:s early</source>
        <translation>%0:s zu früh</translation>
    </message>
    <message>
        <source>%0:s late</source>
        <translation>%0:s zu spät</translation>
    </message>
    <message>
        <source>%0:s missing</source>
        <translation>%0:s fehlend</translation>
    </message>
    <message>
        <source>NOT ON TOUR</source>
        <translation>NICHT IM RUNDGANG</translation>
    </message>
    <message>
        <source>NO EXCEPTIONS</source>
        <translation>KEINE ABWEICHUNGEN</translation>
    </message>
    <message>
        <source>EXCEPTION</source>
        <translation>ABWEICHUNG</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>FEHLT</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>EREIGNIS</translation>
    </message>
    <message>
        <source>Generating Report</source>
        <translation>Bericht wird erstellt</translation>
    </message>
    <message>
        <source>Please wait, generating report (this may take a few minutes)</source>
        <translation>Bitte warten, der Bericht wird erstellt (das kann einige Minuten dauern)</translation>
    </message>
    <message>
        <source>Date Range:   From %0:s to %1:s</source>
        <translation>Zeitraum:   von %0:s bis %1:s</translation>
    </message>
    <message>
        <source>No Data on the report</source>
        <translation>Keine Daten für den Bericht</translation>
    </message>
    <message>
        <source>See error.log for the reason.</source>
        <translation>Der Grund steht in der Datei error.log.</translation>
    </message>
    <message>
        <source>Please check these choices, and whether the reader has been downloaded.</source>
        <translation>Bitte diese Angaben prüfen. Wurde der Leser ausgelesen?</translation>
    </message>
    <message>
        <source>There is no data to show for these parameters</source>
        <translation>Für diese Angaben sind keine Daten vorhanden</translation>
    </message>
    <message>
        <source>The start date cannot be later than the end date</source>
        <translation>Der Anfang darf nicht nach dem Ende liegen</translation>
    </message>
    <message>
        <source>Reader Download Report</source>
        <translation>Auslesebericht</translation>
    </message>
    <message>
        <source>Lists details of each download to the PC for a reader</source>
        <translation>Alles, was aus einem Leser ausgelesen wurde</translation>
    </message>
    <message>
        <source>Download Time:</source>
        <translation>Ausgelesen am:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Date / Time</source>
        <translation>Datum / Uhrzeit</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Database Report</source>
        <translation>Datenbankbericht</translation>
    </message>
    <message>
        <source>Raw data from database</source>
        <translation>Rohdaten aus der Datenbank</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Print Date:</source>
        <translation>Druckdatum:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Tour Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Tour Name:</source>
        <translation>Rundgang:</translation>
    </message>
    <message>
        <source>Tolerance (min):</source>
        <translation>Toleranz (min):</translation>
    </message>
    <message>
        <source>Site/Location</source>
        <translation>Objekt/Kontrollpunkt</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>End Of Report</source>
        <translation>Ende des Berichts</translation>
    </message>
    <message>
        <source>Show Events:</source>
        <translation>Mit Ereignissen:</translation>
    </message>
    <message>
        <source>Tour Report</source>
        <translation>Rundgangsbericht</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>Abweichungsbericht</translation>
    </message>
    <message>
        <source>Reader ID</source>
        <translation>Leser-Nr.</translation>
    </message>
    <message>
        <source>Transfer progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Transfer progress in percent</source>
        <translation>Fortschritt in Prozent</translation>
    </message>
    <message>
        <source>Do not remove the reader until download is complete.</source>
        <translation>Den Leser nicht entfernen, bevor das Auslesen beendet ist.</translation>
    </message>
    <message>
        <source>Docking Station</source>
        <translation>Dockingstation</translation>
    </message>
    <message>
        <source>Connection progress</source>
        <translation>Verbindungsaufbau</translation>
    </message>
    <message>
        <source>&amp;Download Data</source>
        <translation>Daten &amp;auslesen</translation>
    </message>
    <message>
        <source>Stores the touches of the docked reader, then erases the reader</source>
        <translation>Speichert die Erfassungen des eingesetzten Lesers und leert ihn danach</translation>
    </message>
    <message>
        <source>Erases the docked reader without storing its touches</source>
        <translation>Leert den eingesetzten Leser, ohne seine Erfassungen zu speichern</translation>
    </message>
    <message>
        <source>&amp;Erase Reader</source>
        <translation>Leser &amp;leeren</translation>
    </message>
    <message>
        <source>Download result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Touches read</source>
        <translation>Ausgelesene Erfassungen</translation>
    </message>
    <message>
        <source>Communications  Setup</source>
        <translation>Verbindung einrichten</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>An&amp;schluss:</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation>&amp;Gerät:</translation>
    </message>
    <message>
        <source>The device for this port number</source>
        <translation>Das Gerät zu dieser Anschlussnummer</translation>
    </message>
    <message>
        <source>Leave the device set to Automatic unless the docking station uses another one.</source>
        <translation>Das Gerät auf „Automatisch“ lassen, wenn die Dockingstation kein anderes benutzt.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>Hilfetext</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Help on This &amp;Page</source>
        <translation>Hilfe zu dieser &amp;Seite</translation>
    </message>
    <message>
        <source>The help is in English.</source>
        <translation>Die Hilfe ist auf Englisch.</translation>
    </message>
    <message>
        <source>It is not a help file of this program.</source>
        <translation>Die Datei ist keine Hilfedatei dieses Programms.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>&amp;Master</source>
        <translation>&amp;Einsatzleiter</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Benutzer</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Kennwort:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Seitentitel</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>User &amp;Maintenance</source>
        <translation>&amp;Kennwörter</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Com &amp;Options...</source>
        <translation>&amp;COM-Anschluss…</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Programmsymbol</translation>
    </message>
    <message>
        <source>User Maintenance</source>
        <translation>Kennwörter</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>Kennwort &amp;wiederholen:</translation>
    </message>
    <message>
        <source>Report Parameters</source>
        <translation>Berichtsangaben</translation>
    </message>
    <message>
        <source>Select the tour and start date to create the report</source>
        <translation>Rundgang und Datum für den Bericht wählen</translation>
    </message>
    <message>
        <source>Choose the reader</source>
        <translation>Leser wählen</translation>
    </message>
    <message>
        <source>Select the date range and reader ID to create the Reader Download Report</source>
        <translation>Zeitraum und Leser für den Bericht wählen</translation>
    </message>
    <message>
        <source>Reset Dates</source>
        <translation>Auf heute setzen</translation>
    </message>
    <message>
        <source>Sets the range back to today</source>
        <translation>Setzt den Zeitraum wieder auf heute</translation>
    </message>
    <message>
        <source>Select the date range to create the report</source>
        <translation>Zeitraum für den Bericht wählen</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Vorgaben:</translation>
    </message>
    <message>
        <source>Only this event; the places that were touched before it are shown with it</source>
        <translation>Nur dieses Ereignis, zusammen mit den davor erfassten Orten</translation>
    </message>
    <message>
        <source>Only touches made while this site was the last one touched</source>
        <translation>Nur Erfassungen, vor denen zuletzt dieses Objekt erfasst wurde</translation>
    </message>
    <message>
        <source>Sets the range and makes the report at once</source>
        <translation>Setzt den Zeitraum und erstellt den Bericht sofort</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Last30 Days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Angaben</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Rundgang</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>&amp;Rundgang</translation>
    </message>
    <message>
        <source>Tour &amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Leser</translation>
    </message>
    <message>
        <source>&amp;Reader</source>
        <translation>&amp;Leser</translation>
    </message>
    <message>
        <source>Report Options</source>
        <translation>Umfang</translation>
    </message>
    <message>
        <source>Show &amp;All Tour Points</source>
        <translation>Alle &amp;Punkte zeigen</translation>
    </message>
    <message>
        <source>Only Show &amp;Exceptions</source>
        <translation>&amp;Nur Abweichungen zeigen</translation>
    </message>
    <message>
        <source>&amp;Include Events</source>
        <translation>&amp;Mit Ereignissen</translation>
    </message>
    <message>
        <source>Also shows the incidents recorded at each point</source>
        <translation>Zeigt auch die Ereignisse, die an jedem Kontrollpunkt erfasst wurden</translation>
    </message>
    <message>
        <source>&amp;Start Date</source>
        <translation>An&amp;fangsdatum</translation>
    </message>
    <message>
        <source>Start &amp;Time</source>
        <translation>Anfangs&amp;zeit</translation>
    </message>
    <message>
        <source>&amp;End Date</source>
        <translation>&amp;Enddatum</translation>
    </message>
    <message>
        <source>En&amp;d Date</source>
        <translation>Enddat&amp;um</translation>
    </message>
    <message>
        <source>End Ti&amp;me</source>
        <translation>E&amp;ndzeit</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>No entry contains this.</source>
        <translation>Kein Eintrag enthält diesen Text.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Incident Report</source>
        <translation>Ereignisbericht</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers</source>
        <translation>Ereignisse nach Zeitraum und Leser</translation>
    </message>
    <message>
        <source>Incident Report with Sites</source>
        <translation>Ereignisbericht mit Objekten</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers with sites</source>
        <translation>Ereignisse nach Zeitraum und Leser, mit Objekten</translation>
    </message>
    <message>
        <source>&amp;Readers:</source>
        <translation>&amp;Leser:</translation>
    </message>
    <message>
        <source>&amp;Events:</source>
        <translation>&amp;Ereignisse:</translation>
    </message>
    <message>
        <source>Select Incident/s</source>
        <translation>Ereignisse wählen</translation>
    </message>
    <message>
        <source>%0:s [%1:s] -- %2:s</source>
        <translation>%0:s [%1:s] -- %2:s</translation>
    </message>
    <message>
        <source>There must be at least one reader selected to create a report</source>
        <translation>Für den Bericht muss mindestens ein Leser gewählt sein</translation>
    </message>
    <message>
        <source>An event was deleted meanwhile. Please open the dialog of the report again.</source>
        <translation>Ein Ereignis wurde inzwischen gelöscht. Bitte das Fenster des Berichts noch einmal öffnen.</translation>
    </message>
    <message>
        <source>No reader is defined.</source>
        <translation>Es ist kein Leser angelegt.</translation>
    </message>
    <message>
        <source>No event is defined. A master adds event books on the Setup page.</source>
        <translation>Es ist kein Ereignis angelegt. Ereignisbücher legt der Einsatzleiter auf der Seite „Einrichtung“ an.</translation>
    </message>
    <message>
        <source>There must be at least one event selected to create a report</source>
        <translation>Für den Bericht muss mindestens ein Ereignis gewählt sein</translation>
    </message>
    <message>
        <source>No incidents of this type were recorded</source>
        <translation>Kein Ereignis dieser Art wurde aufgezeichnet</translation>
    </message>
    <message>
        <source>%0:s, %1:s,  %2:s</source>
        <translation>%0:s, %1:s,  %2:s</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
    <message>
        <source>No event has the code %0:s.</source>
        <translation>Kein Ereignis hat den Code %0:s.</translation>
    </message>
    <message>
        <source>There is no site named %0:s.</source>
        <translation>Es gibt kein Objekt mit dem Namen %0:s.</translation>
    </message>
    <message>
        <source>Select the date and other filters to create the Incident report</source>
        <translation>Zeitraum und Filter für den Ereignisbericht wählen</translation>
    </message>
    <message>
        <source>Incidents And Locations Report</source>
        <translation>Ereignisse und Kontrollpunkte</translation>
    </message>
    <message>
        <source>Reader Name</source>
        <translation>Leser</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Seitenzahl</translation>
    </message>
    <message>
        <source>of</source>
        <translation>von</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The report could not be exported.</source>
        <translation>Der Bericht konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Der Bericht konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Einstellungen des Lesers</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Sa&amp;me as PC Clock:</source>
        <translation>&amp;Wie PC-Uhr:</translation>
    </message>
    <message>
        <source>C&amp;ustom Time</source>
        <translation>A&amp;ndere Uhrzeit</translation>
    </message>
    <message>
        <source>Custom Time</source>
        <translation>Andere Uhrzeit</translation>
    </message>
    <message>
        <source>What the reader does at each touch</source>
        <translation>Was der Leser bei jeder Erfassung tut</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>PC time</source>
        <translation>Uhrzeit des PCs</translation>
    </message>
    <message>
        <source>&amp;Automatically Set Time and Date to PC's settings when downloading Data</source>
        <translation>Beim A&amp;uslesen Uhrzeit und Datum nach dem PC stellen</translation>
    </message>
    <message>
        <source>Reader Options</source>
        <translation>Signale des Lesers</translation>
    </message>
    <message>
        <source>&amp;Buzzer Enabled</source>
        <translation>Summer &amp;ein</translation>
    </message>
    <message>
        <source>&amp;LED Enabled</source>
        <translation>&amp;LED ein</translation>
    </message>
    <message>
        <source>&amp;Vibration Enabled</source>
        <translation>&amp;Vibration ein</translation>
    </message>
    <message>
        <source>Buzzer Duration</source>
        <translation>Dauer des Summers</translation>
    </message>
    <message>
        <source>S&amp;hort</source>
        <translation>&amp;Kurz</translation>
    </message>
    <message>
        <source>L&amp;ong</source>
        <translation>Lan&amp;g</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Hinweis:</translation>
    </message>
    <message>
        <source>If you select a custom date then this will only apply for one time</source>
        <translation>Ein anderes Datum gilt nur für dieses eine Mal.</translation>
    </message>
    <message>
        <source>The automatic update feature only uses the PC's date and time</source>
        <translation>Das automatische Stellen richtet sich immer nach dem PC.</translation>
    </message>
    <message>
        <source>You must select at least one of the reader options (Led, Buzzer or Vibration)</source>
        <translation>Mindestens ein Signal des Lesers muss gewählt sein (LED, Summer oder Vibration)</translation>
    </message>
    <message>
        <source>Reader update successful</source>
        <translation>Der Leser wurde eingestellt</translation>
    </message>
    <message>
        <source>Reader update failed.  Please try again.</source>
        <translation>Der Leser konnte nicht eingestellt werden. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The options were set, but the clock was not.</source>
        <translation>Die Signale wurden eingestellt, die Uhr aber nicht gestellt.</translation>
    </message>
    <message>
        <source>The clock was set, but the options were not.</source>
        <translation>Die Uhr wurde gestellt, die Signale aber nicht eingestellt.</translation>
    </message>
    <message>
        <source>Add New Reader</source>
        <translation>Neuer Leser</translation>
    </message>
    <message>
        <source>Add New Button</source>
        <translation>Neuer Chip</translation>
    </message>
    <message>
        <source>Button ID:</source>
        <translation>Code:</translation>
    </message>
    <message>
        <source>Button ID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>This Reader ID already exists!</source>
        <translation>Dieser Leser ist schon angelegt!</translation>
    </message>
    <message>
        <source>That key is already used!</source>
        <translation>Dieser Code ist schon vergeben!</translation>
    </message>
    <message>
        <source>&amp;Read ID</source>
        <translation>Nummer &amp;lesen</translation>
    </message>
    <message>
        <source>&amp;Manual Entry</source>
        <translation>&amp;Von Hand eingeben</translation>
    </message>
    <message>
        <source>Manual Entry</source>
        <translation>Von Hand eingeben</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>Na&amp;me</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Not in use yet</source>
        <translation>Noch nicht vergeben</translation>
    </message>
    <message>
        <source>Reader ID Download Failed</source>
        <translation>Die Nummer des Lesers konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name</source>
        <translation>Dieser Name ist schon vergeben. Bitte einen anderen eingeben</translation>
    </message>
    <message>
        <source>You must enter a name for this item</source>
        <translation>Bitte einen Namen eingeben</translation>
    </message>
    <message>
        <source>Enter the 6 digit button ID.  This is the last 6 digits visible on the front of the 'Dallas' Key. Valid characters are 0~9 and A~F.</source>
        <translation>Bitte den sechsstelligen Code eingeben. Es sind die letzten 6 Stellen auf der Vorderseite des Chips. Gültig sind 0 bis 9 und A bis F.</translation>
    </message>
    <message>
        <source>Illegal Value</source>
        <translation>Ungültiger Wert</translation>
    </message>
    <message>
        <source>Firmware Version is</source>
        <translation>Firmware-Version:</translation>
    </message>
    <message>
        <source>Reader Firmware Version Test</source>
        <translation>Firmware-Version des Lesers</translation>
    </message>
    <message>
        <source>&amp;Reader Options</source>
        <translation>Leser &amp;einstellen</translation>
    </message>
    <message>
        <source>Reader Firmware Version</source>
        <translation>Firmware-Version des Lesers</translation>
    </message>
    <message>
        <source>The reader did not report its firmware version.</source>
        <translation>Der Leser hat keine Firmware-Version gemeldet.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station and read its ID.</source>
        <translation>Den Leser in die Dockingstation einsetzen und die Nummer lesen.</translation>
    </message>
    <message>
        <source>Touch the reader in the docking station with the new button, or enter its ID by hand.</source>
        <translation>Den Leser in der Dockingstation mit dem neuen Chip berühren oder den Code von Hand eingeben.</translation>
    </message>
    <message>
        <source>Only the master may do this.</source>
        <translation>Das darf nur der Einsatzleiter.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Tour &amp;Copy</source>
        <translation>Rundgang &amp;kopieren</translation>
    </message>
    <message>
        <source>Opens the selected row (double click)</source>
        <translation>Öffnet die gewählte Zeile (Doppelklick)</translation>
    </message>
    <message>
        <source>Adds a new row</source>
        <translation>Fügt eine neue Zeile hinzu</translation>
    </message>
    <message>
        <source>Deletes the selected row (Del)</source>
        <translation>Löscht die gewählte Zeile (Entf)</translation>
    </message>
    <message>
        <source>Makes a new tour as a copy of another</source>
        <translation>Legt einen neuen Rundgang als Kopie eines anderen an</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Stammdaten</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Event Books</source>
        <translation>Ereignisbücher</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rundgänge</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Leser</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>S&amp;ite</source>
        <translation>&amp;Objekt</translation>
    </message>
    <message>
        <source>Event Book</source>
        <translation>Ereignisbuch</translation>
    </message>
    <message>
        <source>User Group</source>
        <translation>Benutzergruppe</translation>
    </message>
    <message>
        <source>Tour Name</source>
        <translation>Rundgang</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Chips</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten:</translation>
    </message>
    <message>
        <source>Edit Reader</source>
        <translation>Leser bearbeiten</translation>
    </message>
    <message>
        <source>Edit Time</source>
        <translation>Zeit ändern</translation>
    </message>
    <message>
        <source>&amp;Edit Time</source>
        <translation>&amp;Zeit ändern</translation>
    </message>
    <message>
        <source>&amp;Minutes since the previous point</source>
        <translation>&amp;Minuten seit dem vorigen Punkt</translation>
    </message>
    <message>
        <source>Select Tour to copy</source>
        <translation>Rundgang zum Kopieren wählen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Descri&amp;ption :</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Tour Start Ti&amp;me:</source>
        <translation>Be&amp;ginn:</translation>
    </message>
    <message>
        <source>To&amp;lerance (minutes):</source>
        <translation>&amp;Toleranz (Minuten):</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>Ob&amp;jekt:</translation>
    </message>
    <message>
        <source>A&amp;vailable Locations</source>
        <translation>&amp;Verfügbare Kontrollpunkte</translation>
    </message>
    <message>
        <source>Available Locations</source>
        <translation>Verfügbare Kontrollpunkte</translation>
    </message>
    <message>
        <source>Current T&amp;our Locations</source>
        <translation>&amp;Punkte des Rundgangs</translation>
    </message>
    <message>
        <source>Current Tour Locations</source>
        <translation>Punkte des Rundgangs</translation>
    </message>
    <message>
        <source>&amp;Add -&gt;</source>
        <translation>&amp;Hinzufügen -&gt;</translation>
    </message>
    <message>
        <source>&lt;- &amp;Remove</source>
        <translation>&lt;- &amp;Entfernen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Removes all points from the tour</source>
        <translation>Entfernt alle Kontrollpunkte aus dem Rundgang</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Customize Tour Sequence</source>
        <translation>Rundgang festlegen</translation>
    </message>
    <message>
        <source>Location Name</source>
        <translation>Kontrollpunkt</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Kontrollpunkt</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Kontrollpunkt</translation>
    </message>
    <message>
        <source>Add New User</source>
        <translation>Neuer Benutzer</translation>
    </message>
    <message>
        <source>Add New Location</source>
        <translation>Neuer Kontrollpunkt</translation>
    </message>
    <message>
        <source>Add New Event</source>
        <translation>Neues Ereignis</translation>
    </message>
    <message>
        <source>No Item is selected</source>
        <translation>Nichts ist gewählt</translation>
    </message>
    <message>
        <source>No sites yet. A site is a place with location buttons. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Noch keine Objekte. Ein Objekt ist ein Ort mit Kontrollpunkten. Mit „Neu“ ein Objekt anlegen, dann mit „Bearbeiten“ die Chips der Kontrollpunkte anlegen.</translation>
    </message>
    <message>
        <source>No event books yet. The buttons of an event book stand for incidents. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Noch keine Ereignisbücher. Jeder Chip eines Ereignisbuchs steht für ein Ereignis. Mit „Neu“ ein Buch anlegen, dann mit „Bearbeiten“ die Chips anlegen.</translation>
    </message>
    <message>
        <source>No tours yet. Press Add for a new one, then Edit to choose its locations.</source>
        <translation>Noch keine Rundgänge. Mit „Neu“ einen Rundgang anlegen, dann mit „Bearbeiten“ die Kontrollpunkte wählen.</translation>
    </message>
    <message>
        <source>No readers yet. Put a reader into the docking station and press Add. Without a docking station no reader can be added.</source>
        <translation>Noch keine Leser. Einen Leser in die Dockingstation einsetzen und „Neu“ drücken. Ohne Dockingstation lässt sich kein Leser anlegen.</translation>
    </message>
    <message>
        <source>No buttons yet. Press Add, then touch the reader in the docking station with a button.</source>
        <translation>Noch keine Chips. „Neu“ drücken, dann den Leser in der Dockingstation mit einem Chip berühren.</translation>
    </message>
    <message>
        <source>No buttons yet. A new button is read at the docking station, which is not connected.</source>
        <translation>Noch keine Chips. Neue Chips werden an der Dockingstation gelesen. Sie ist nicht verbunden.</translation>
    </message>
    <message>
        <source>This site has no location buttons yet. Add them on the Setup page: select the site and press Edit.</source>
        <translation>Dieses Objekt hat noch keine Kontrollpunkte. Sie werden auf der Seite „Einrichtung“ angelegt: das Objekt wählen und „Bearbeiten“ drücken.</translation>
    </message>
    <message>
        <source>The tour has no points yet. Select a location in the other list and press Add, in the order of the tour.</source>
        <translation>Der Rundgang hat noch keine Punkte. In der anderen Liste die Kontrollpunkte in der Reihenfolge des Rundgangs wählen und jeweils „Hinzufügen“ drücken.</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text (Ctrl+F).</source>
        <translation>Zeigt nur die Zeilen, die diesen Text enthalten (Strg+F).</translation>
    </message>
    <message>
        <source>A touch that is early or late by no more minutes than this counts as on time.</source>
        <translation>Eine Erfassung, die höchstens so viele Minuten zu früh oder zu spät ist, gilt als pünktlich.</translation>
    </message>
    <message>
        <source>For the first point: the minutes since the start of the tour.</source>
        <translation>Beim ersten Punkt: die Minuten seit dem Beginn des Rundgangs.</translation>
    </message>
    <message>
        <source>&quot;%0:s&quot; will be lost.</source>
        <translation>„%0:s“ geht verloren.</translation>
    </message>
    <message>
        <source>&quot;%0:s&quot; and its buttons will be lost.</source>
        <translation>„%0:s“ und die zugehörigen Chips gehen verloren.</translation>
    </message>
    <message>
        <source>&quot;%0:s&quot; and its points will be lost.</source>
        <translation>„%0:s“ und alle zugehörigen Punkte gehen verloren.</translation>
    </message>
    <message>
        <source>&quot;%0:s&quot; will be lost. Touches that are already downloaded are kept.</source>
        <translation>„%0:s“ geht verloren. Bereits ausgelesene Erfassungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>The name could not be saved. Nothing was changed.</source>
        <translation>Der Name konnte nicht gespeichert werden. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The password is empty. Anyone could log in without one.</source>
        <translation>Das Kennwort ist leer. Jeder könnte sich ohne Kennwort anmelden.</translation>
    </message>
    <message>
        <source>Do you want to save it?</source>
        <translation>Trotzdem speichern?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Soll dieser Eintrag wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name.</source>
        <translation>Dieser Name ist schon vergeben. Bitte einen anderen eingeben.</translation>
    </message>
    <message>
        <source>You must enter a name for this group</source>
        <translation>Bitte einen Namen eingeben</translation>
    </message>
    <message>
        <source>A name or description cannot contain line breaks or other control characters.</source>
        <translation>Namen und Beschreibungen dürfen keine Zeilenumbrüche oder andere Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>The tour could not be saved. Nothing was changed.</source>
        <translation>Der Rundgang konnte nicht gespeichert werden. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Discard them?</source>
        <translation>Die Änderungen sind nicht gespeichert. Sollen sie verworfen werden?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete it?</source>
        <translation>Soll diese Gruppe wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>The selected group contains sub-items</source>
        <translation>Die gewählte Gruppe enthält Chips.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this reader?</source>
        <translation>Soll dieser Leser wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>You must add at least one location before you can define a tour</source>
        <translation>Vor dem ersten Rundgang muss mindestens ein Kontrollpunkt angelegt sein</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this tour?</source>
        <translation>Soll dieser Rundgang wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>The selected Tour contains data.</source>
        <translation>Der gewählte Rundgang enthält Punkte.</translation>
    </message>
    <message>
        <source>Cannot find any Tour Points to copy</source>
        <translation>Der Rundgang hat keine Punkte zum Kopieren</translation>
    </message>
    <message>
        <source>Cannot assign two sequential tour points with the same location</source>
        <translation>Derselbe Kontrollpunkt darf nicht zweimal direkt nacheinander stehen</translation>
    </message>
    <message>
        <source>The tolerance value can only range from 0 to 59 minutes</source>
        <translation>Die Toleranz muss zwischen 0 und 59 Minuten liegen</translation>
    </message>
    <message>
        <source>The total tour time can only range from 0 to 1439 minutes</source>
        <translation>Der ganze Rundgang darf höchstens 1439 Minuten dauern</translation>
    </message>
    <message>
        <source>Only valid numbers from 0 to 1439 can be entered</source>
        <translation>Nur ganze Zahlen von 0 bis 1439 sind gültig</translation>
    </message>
    <message>
        <source>The docking station is no longer connected. Enter the ID by hand, or go to the home page to connect again.</source>
        <translation>Die Dockingstation ist nicht mehr verbunden. Den Code von Hand eingeben oder zur Startseite gehen und neu verbinden.</translation>
    </message>
    <message>
        <source>&amp;Archive Events</source>
        <translation>Erfassungen &amp;archivieren</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Sicherung</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellung</translation>
    </message>
    <message>
        <source>Company &amp;Info</source>
        <translation>&amp;Firmenangaben</translation>
    </message>
    <message>
        <source>&amp;About </source>
        <translation>&amp;Über </translation>
    </message>
    <message>
        <source>Company Info</source>
        <translation>Firmenangaben</translation>
    </message>
    <message>
        <source>These lines are printed at the head of each report. After the next start, only the first 50 characters of a line are printed.</source>
        <translation>Diese Zeilen stehen am Kopf jedes Berichts. Nach dem nächsten Start werden nur noch die ersten 50 Zeichen einer Zeile gedruckt.</translation>
    </message>
    <message>
        <source>Line &amp;1:</source>
        <translation>Zeile &amp;1:</translation>
    </message>
    <message>
        <source>Line &amp;2:</source>
        <translation>Zeile &amp;2:</translation>
    </message>
    <message>
        <source>Line &amp;3:</source>
        <translation>Zeile &amp;3:</translation>
    </message>
    <message>
        <source>Line &amp;4:</source>
        <translation>Zeile &amp;4:</translation>
    </message>
    <message>
        <source>The company info cannot be saved. This file cannot be written:</source>
        <translation>Die Firmenangaben können nicht gespeichert werden. Diese Datei ist nicht beschreibbar:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>You may use, change and pass on this program, as long as the text of the License stays with it.</source>
        <translation>Sie dürfen dieses Programm benutzen, ändern und weitergeben, solange der Lizenztext beiliegt.</translation>
    </message>
    <message>
        <source>It comes without any warranty.</source>
        <translation>Es wird keine Gewähr übernommen.</translation>
    </message>
    <message>
        <source>For a description of the program, choose Help, Contents.</source>
        <translation>Eine Beschreibung des Programms finden Sie unter Hilfe, Inhalt.</translation>
    </message>
    <message>
        <source>If something does not work, report it to the person who looks after this installation. Give the version and the build shown above, and send this file:</source>
        <translation>Wenn etwas nicht funktioniert, melden Sie es der Person, die diese Installation betreut. Nennen Sie die Version und den Build, die oben stehen, und senden Sie diese Datei:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Ansprechpartner</translation>
    </message>
    <message>
        <source>WK3_ENG.HLP</source>
        <translation>WK3_DEU.HLP</translation>
    </message>
    <message>
        <source>This folder does not exist. Please choose another one.</source>
        <translation>Dieser Ordner ist nicht vorhanden. Bitte einen anderen wählen.</translation>
    </message>
    <message>
        <source>A file name can have at most 100 characters.</source>
        <translation>Ein Dateiname darf höchstens 100 Zeichen haben.</translation>
    </message>
    <message>
        <source>Select backup destination</source>
        <translation>Ziel der Sicherung wählen</translation>
    </message>
    <message>
        <source>Database Files (*.mdb)</source>
        <translation>Datenbankdateien (*.mdb)</translation>
    </message>
    <message>
        <source>That filename is already in use. Please choose another filename</source>
        <translation>Dieser Dateiname ist schon vergeben. Bitte einen anderen Dateinamen wählen</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>The database is being copied and checked.</source>
        <translation>Die Datenbank wird kopiert und geprüft.</translation>
    </message>
    <message>
        <source>Successfully copied the database to :</source>
        <translation>Die Datenbank wurde kopiert nach:</translation>
    </message>
    <message>
        <source>The file was changed while it was read.</source>
        <translation>Die Datei wurde verändert, während sie gelesen wurde.</translation>
    </message>
    <message>
        <source>The copy is damaged: %0:s</source>
        <translation>Die Kopie ist beschädigt: %0:s</translation>
    </message>
    <message>
        <source>The copy does not have the rows of the database.</source>
        <translation>Die Kopie enthält nicht dieselben Zeilen wie die Datenbank.</translation>
    </message>
    <message>
        <source>The database was not copied.</source>
        <translation>Die Datenbank wurde nicht kopiert.</translation>
    </message>
    <message>
        <source>The database itself is damaged.</source>
        <translation>Die Datenbank selbst ist beschädigt.</translation>
    </message>
    <message>
        <source>The program itself uses this file. Please choose another filename.</source>
        <translation>Das Programm selbst benutzt diese Datei. Bitte einen anderen Dateinamen wählen.</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>Die Datei oder ihr Ordner ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Removed:</source>
        <translation>Gelöscht:</translation>
    </message>
    <message>
        <source>Not removed:</source>
        <translation>Nicht gelöscht:</translation>
    </message>
    <message>
        <source>A program was killed while it wrote to this file. Its journal is still beside it.</source>
        <translation>Ein Programm wurde abgebrochen, während es in diese Datei schrieb. Ihr Journal liegt noch daneben.</translation>
    </message>
    <message>
        <source>You do not have permission to read this file.</source>
        <translation>Für diese Datei fehlt das Leserecht.</translation>
    </message>
    <message>
        <source>It is not a database of this program, or it is damaged.</source>
        <translation>Die Datei ist keine Datenbank dieses Programms oder beschädigt.</translation>
    </message>
    <message>
        <source>The database is damaged:</source>
        <translation>Die Datenbank ist beschädigt:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Nicht vorhanden:</translation>
    </message>
    <message>
        <source>Buttons whose group does not exist:</source>
        <translation>Chips, deren Gruppe es nicht gibt:</translation>
    </message>
    <message>
        <source>Tour points whose tour does not exist:</source>
        <translation>Punkte, deren Rundgang es nicht gibt:</translation>
    </message>
    <message>
        <source>Tour points whose button does not exist:</source>
        <translation>Punkte, deren Chip es nicht gibt:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Comma Delimited Text (*.csv)</source>
        <translation>Durch Kommas getrennter Text (*.csv)</translation>
    </message>
    <message>
        <source>Archive Events</source>
        <translation>Erfassungen archivieren</translation>
    </message>
    <message>
        <source>Choose the first and the last day. Their events are moved into a file and deleted from the database. They cannot be brought back from the file.</source>
        <translation>Bitte den ersten und den letzten Tag wählen. Die Erfassungen dieser Zeit werden in eine Datei verschoben und aus der Datenbank gelöscht. Aus der Datei lassen sie sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>Warning: This action will permanently delete the events from the database.</source>
        <translation>Warnung: Die Erfassungen werden endgültig aus der Datenbank gelöscht.</translation>
    </message>
    <message>
        <source>Select location of backup database file</source>
        <translation>Sicherung der Datenbank auswählen</translation>
    </message>
    <message>
        <source>That filename cannot be found. Please choose another filename</source>
        <translation>Dieser Dateiname wurde nicht gefunden. Bitte einen anderen Dateinamen wählen</translation>
    </message>
    <message>
        <source>This file is the database itself. Please choose a backup of it.</source>
        <translation>Diese Datei ist die Datenbank selbst. Bitte eine Sicherung wählen.</translation>
    </message>
    <message>
        <source>Warning: This action will delete the existing database. You will loose ALL data in the existing database.</source>
        <translation>Warnung: Die vorhandene Datenbank wird gelöscht. ALLE Daten darin gehen verloren.</translation>
    </message>
    <message>
        <source>Are you sure you want to continue?</source>
        <translation>Wirklich fortfahren?</translation>
    </message>
    <message>
        <source>There are no stored events within the dates you entered.</source>
        <translation>In diesem Zeitraum sind keine Erfassungen gespeichert.</translation>
    </message>
    <message>
        <source>File Save Error: Archive Not Saved.  Please Try again.</source>
        <translation>Fehler beim Speichern: Das Archiv wurde nicht gespeichert. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Events Archived Successfully</source>
        <translation>Die Erfassungen wurden archiviert</translation>
    </message>
    <message>
        <source>Number of Events =</source>
        <translation>Zahl der Erfassungen:</translation>
    </message>
    <message>
        <source>FileName = </source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>The events are written to the file and then deleted from the database.</source>
        <translation>Die Erfassungen werden in die Datei geschrieben und dann aus der Datenbank gelöscht.</translation>
    </message>
    <message>
        <source>%0:s events were written, but the database deleted %1:s. Nothing was archived.</source>
        <translation>In die Datei geschriebene Erfassungen: %0:s, aus der Datenbank gelöschte: %1:s. Weil das nicht übereinstimmt, wurde nichts archiviert.</translation>
    </message>
    <message>
        <source>The events were written to %0:s, but they are still in the database: %1:s</source>
        <translation>Die Erfassungen wurden in die Datei %0:s geschrieben, sind aber noch in der Datenbank: %1:s</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>The backup is being copied and checked.</source>
        <translation>Die Sicherung wird kopiert und geprüft.</translation>
    </message>
    <message>
        <source>The database is in use. Waiting until it is free.</source>
        <translation>Die Datenbank wird benutzt. Das Programm wartet, bis sie frei ist.</translation>
    </message>
    <message>
        <source>Successfully copied the database</source>
        <translation>Die Datenbank wurde kopiert</translation>
    </message>
    <message>
        <source>Warning : The program will now close.</source>
        <translation>Warnung: Das Programm wird jetzt geschlossen.</translation>
    </message>
    <message>
        <source>Please restart the program to continue.</source>
        <translation>Bitte das Programm neu starten, um weiterzuarbeiten.</translation>
    </message>
    <message>
        <source>The database was not restored. It is as it was before.</source>
        <translation>Die Datenbank wurde nicht wiederhergestellt. Sie ist, wie sie war.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program.</source>
        <translation>Die gewählte Datei ist keine Datenbank dieses Programms.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program, its password is different, or it is damaged.</source>
        <translation>Die gewählte Datei ist keine Datenbank dieses Programms, hat ein anderes Kennwort oder ist beschädigt.</translation>
    </message>
    <message>
        <source>The chosen file is not a complete database of this program. It lacks %0:s.</source>
        <translation>Die gewählte Datei ist keine vollständige Datenbank dieses Programms. Nicht vorhanden: %0:s.</translation>
    </message>
    <message>
        <source>The chosen file is damaged: %0:s</source>
        <translation>Die gewählte Datei ist beschädigt: %0:s</translation>
    </message>
    <message>
        <source>Another program has used the database meanwhile. Please try again.</source>
        <translation>Ein anderes Programm hat die Datenbank inzwischen benutzt. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The database was restored, but the disk reported an error. Please check it.</source>
        <translation>Die Datenbank wurde wiederhergestellt, aber der Datenträger meldete einen Fehler. Bitte prüfen.</translation>
    </message>
</context>
</TS>
