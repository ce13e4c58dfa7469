<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Wardlock</name>
    <message>
        <source>The database is damaged. Some of its events can no longer be read.</source>
        <translation>Il database è danneggiato. Una parte delle letture non è più leggibile.</translation>
    </message>
    <message>
        <source>Please restore a backup. Until then, no reader is erased.</source>
        <translation>Ripristinare una copia di backup. Fino ad allora nessun lettore verrà svuotato.</translation>
    </message>
    <message>
        <source>Another program is using it.</source>
        <translation>Un altro programma sta usando il database.</translation>
    </message>
    <message>
        <source>It is in use by %0:s (process %1:s).</source>
        <translation>Il database è in uso da parte di %0:s (processo %1:s).</translation>
    </message>
    <message>
        <source>It is in use on computer %2:s by %0:s (process %1:s).</source>
        <translation>Il database è in uso sul computer %2:s da parte di %0:s (processo %1:s).</translation>
    </message>
    <message>
        <source>The touches are stored, but the disk reported an error. The reader was not erased.</source>
        <translation>Le letture sono state salvate, ma il disco ha segnalato un errore. Il lettore non è stato svuotato.</translation>
    </message>
    <message>
        <source>The disk or the network reported an error. Please check it and try again.</source>
        <translation>Il disco o la rete ha segnalato un errore. Controllare e riprovare.</translation>
    </message>
    <message>
        <source>The database is damaged. The reader was not erased.</source>
        <translation>Il database è danneggiato. Il lettore non è stato svuotato.</translation>
    </message>
    <message>
        <source>A name or description can have at most 100 characters.</source>
        <translation>Un nome o una descrizione può avere al massimo 100 caratteri.</translation>
    </message>
    <message>
        <source>A password cannot contain line breaks or other control characters.</source>
        <translation>Una password non può contenere interruzioni di riga o altri caratteri di controllo.</translation>
    </message>
    <message>
        <source>The report could not be created. See error.log for the reason.</source>
        <translation>Non è stato possibile creare il rapporto. Il motivo è indicato nel file error.log.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>The folder %0:s does not exist. Please create it, or choose another folder in WARDLOCK_HOME.</source>
        <translation>La cartella %0:s non esiste. Crearla, oppure indicarne un’altra in WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>You may not write to the folder %0:s. Please ask for permission, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Manca l’autorizzazione a scrivere nella cartella %0:s. Richiederla, oppure indicare un’altra cartella in WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>There is no database yet. Please start the station once to create it.</source>
        <translation>Non esiste ancora un database. Avviare una volta il programma Wardlock, che ne crea uno.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Il disco è pieno.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this file or its folder.</source>
        <translation>Manca l’autorizzazione a scrivere in questo file o nella sua cartella.</translation>
    </message>
    <message>
        <source>Its password is different, or it is damaged. If it is damaged, please restore a backup.</source>
        <translation>La password è diversa, oppure il database è danneggiato. Se è danneggiato, ripristinare una copia di backup.</translation>
    </message>
    <message>
        <source>It is damaged. Please restore a backup.</source>
        <translation>Il database è danneggiato. Ripristinare una copia di backup.</translation>
    </message>
    <message>
        <source>A journal next to the database did not belong to it. The database was opened without this journal.</source>
        <translation>Accanto al database c’era un journal che non gli apparteneva. Il database è stato aperto senza questo journal.</translation>
    </message>
    <message>
        <source>It was renamed to:</source>
        <translation>È stato rinominato in:</translation>
    </message>
    <message>
        <source>The User Name / Password are incorrect. Please try again.</source>
        <translation>Nome utente o password non corretti. Riprovare.</translation>
    </message>
    <message>
        <source>Could not open the com port.</source>
        <translation>Impossibile aprire la porta COM.</translation>
    </message>
    <message>
        <source>Check settings and try again.</source>
        <translation>Controllare le impostazioni e riprovare.</translation>
    </message>
    <message>
        <source>The master chooses the port under Tools, Com Options.</source>
        <translation>Il responsabile sceglie la porta in Strumenti, Porta COM.</translation>
    </message>
    <message>
        <source>Is the docking station plugged in, and is this its device?</source>
        <translation>La base di scarico è collegata ed è questo il suo dispositivo?</translation>
    </message>
    <message>
        <source>Could not connect to the docking station.</source>
        <translation>Impossibile collegarsi alla base di scarico.</translation>
    </message>
    <message>
        <source>Check hardware and settings and try again.</source>
        <translation>Controllare i dispositivi e le impostazioni e riprovare.</translation>
    </message>
    <message>
        <source>Working in Offline Mode</source>
        <translation>Si lavora senza base di scarico</translation>
    </message>
    <message>
        <source>Docking Station : OK</source>
        <translation>Base di scarico: OK</translation>
    </message>
    <message>
        <source>Docking Station : Not Detected</source>
        <translation>Base di scarico: non rilevata</translation>
    </message>
    <message>
        <source>%0:s is gone. Plug it in again.</source>
        <translation>%0:s non è più collegato. Collegarlo di nuovo.</translation>
    </message>
    <message>
        <source>Last download</source>
        <translation>Ultimo scarico</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ancora nessuno</translation>
    </message>
    <message>
        <source>Tours of the last 24 hours</source>
        <translation>Ronde delle ultime 24 ore</translation>
    </message>
    <message>
        <source>Click a tour, or press Enter, to open its report.</source>
        <translation>Fare clic su una ronda, o premere Invio, per aprirne il rapporto.</translation>
    </message>
    <message>
        <source>No tour was due.</source>
        <translation>Nessuna ronda era prevista.</translation>
    </message>
    <message>
        <source>Readers and tours are not set up yet. A master does this on the Setup page.</source>
        <translation>I lettori e le ronde non sono ancora definiti. Lo fa il responsabile nella pagina Configurazione.</translation>
    </message>
    <message>
        <source>not downloaded or not walked</source>
        <translation>non scaricata o non fatta</translation>
    </message>
    <message>
        <source>On time</source>
        <translation>In orario</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>In anticipo</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>In ritardo</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Senza lettura</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Primi passi</translation>
    </message>
    <message>
        <source>Define a site</source>
        <translation>Definire un sito</translation>
    </message>
    <message>
        <source>Add the buttons of the site</source>
        <translation>Aggiungere i bottoni del sito</translation>
    </message>
    <message>
        <source>Add a reader</source>
        <translation>Aggiungere un lettore</translation>
    </message>
    <message>
        <source>Plan a tour</source>
        <translation>Pianificare una ronda</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fatto</translation>
    </message>
    <message>
        <source>The touches could not be stored. The reader was not erased.</source>
        <translation>Non è stato possibile salvare le letture. Il lettore non è stato svuotato.</translation>
    </message>
    <message>
        <source>Touches stored: </source>
        <translation>Letture salvate: </translation>
    </message>
    <message>
        <source>The reader was taken out of the station. It was not erased.</source>
        <translation>Il lettore è stato tolto dalla base di scarico. Non è stato svuotato.</translation>
    </message>
    <message>
        <source>Another reader is in the station. It was not erased.</source>
        <translation>Nella base di scarico c’è un altro lettore. Non è stato svuotato.</translation>
    </message>
    <message>
        <source>The reader has been used since it was read. It was not erased.</source>
        <translation>Il lettore è stato usato dopo lo scarico. Non è stato svuotato.</translation>
    </message>
    <message>
        <source>The reader's memory continues after its end mark. The touches that were read are stored, but the reader was not erased.</source>
        <translation>La memoria del lettore continua oltre il segno di fine. Le letture ricevute sono state salvate, ma il lettore non è stato svuotato.</translation>
    </message>
    <message>
        <source>The reader holds a different number of records than it reports. The touches that were read are stored, but the reader was not erased.</source>
        <translation>Il lettore non contiene il numero di registrazioni che dichiara. Le letture ricevute sono state salvate, ma il lettore non è stato svuotato.</translation>
    </message>
    <message>
        <source>The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It was not set.</source>
        <translation>L’orologio del lettore accetta solo date dal 1º gennaio 2000 al 6 giugno 2179. Non è stato regolato.</translation>
    </message>
    <message>
        <source>Reader Memory NOT erased!</source>
        <translation>Memoria del lettore NON svuotata!</translation>
    </message>
    <message>
        <source>Reader Memory erased</source>
        <translation>Memoria del lettore svuotata</translation>
    </message>
    <message>
        <source>Reader ID:</source>
        <translation>N. lettore:</translation>
    </message>
    <message>
        <source>KV-88 Wardlock Reports</source>
        <translation>Rapporti KV-88 Wardlock</translation>
    </message>
    <message>
        <source>%0:s - Version %1:s</source>
        <translation>%0:s - Versione %1:s</translation>
    </message>
    <message>
        <source>Download Failed</source>
        <translation>Scarico non riuscito</translation>
    </message>
    <message>
        <source>Remove the cause, and then download the reader again.</source>
        <translation>Eliminare la causa, poi scaricare di nuovo il lettore.</translation>
    </message>
    <message>
        <source>All touches are still in the reader.</source>
        <translation>Tutte le letture sono ancora nel lettore.</translation>
    </message>
    <message>
        <source>Download Successful</source>
        <translation>Scarico riuscito</translation>
    </message>
    <message>
        <source>Reports of the tours in this download</source>
        <translation>Rapporti delle ronde di questo scarico</translation>
    </message>
    <message>
        <source>More on the Reports page: %0:s</source>
        <translation>Altri nella pagina Rapporti: %0:s</translation>
    </message>
    <message>
        <source>Data Readings = </source>
        <translation>Letture: </translation>
    </message>
    <message>
        <source>The Reader was empty</source>
        <translation>Il lettore era vuoto</translation>
    </message>
    <message>
        <source>Reader Clock update failed.  Please try again.</source>
        <translation>Non è stato possibile regolare l’orologio del lettore. Riprovare.</translation>
    </message>
    <message>
        <source>The download itself is complete. The clock can be set with Reader Options in the Tools menu.</source>
        <translation>Lo scarico è stato completato. L’orologio si può regolare da Strumenti, Impostazioni lettore.</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the reader? </source>
        <translation>Svuotare davvero la memoria del lettore? </translation>
    </message>
    <message>
        <source>The reader that was downloaded last:</source>
        <translation>Ultimo lettore scaricato:</translation>
    </message>
    <message>
        <source>Touches that have not been downloaded yet will be lost.</source>
        <translation>Le letture non ancora scaricate andranno perse.</translation>
    </message>
    <message>
        <source>Reader Erase Failed.  Try again?</source>
        <translation>Non è stato possibile svuotare il lettore. Riprovare?</translation>
    </message>
    <message>
        <source>As long as the reader keeps its touches, each further download stores them again.</source>
        <translation>Finché il lettore conserva le sue letture, ogni nuovo scarico le salva un’altra volta.</translation>
    </message>
    <message>
        <source>Reader Erased</source>
        <translation>Lettore svuotato</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Download Error</source>
        <translation>Errore di scarico</translation>
    </message>
    <message>
        <source>The names of the buttons could not be read from the database. See error.log for the reason.</source>
        <translation>Non è stato possibile leggere i nomi dei bottoni dal database. Il motivo è indicato nel file error.log.</translation>
    </message>
    <message>
        <source>What the reader sent was not complete or not valid. Please try again.</source>
        <translation>I dati inviati dal lettore sono incompleti o non validi. Riprovare.</translation>
    </message>
    <message>
        <source>The connection to the docking station was lost. Check its cable and try again.</source>
        <translation>Il collegamento con la base di scarico si è interrotto. Controllare il cavo e riprovare.</translation>
    </message>
    <message>
        <source>The docking station could not read the reader. Take it out, put it in again, and try once more.</source>
        <translation>La base di scarico non ha potuto leggere il lettore. Toglierlo, inserirlo di nuovo e riprovare.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station so that it sits firmly.</source>
        <translation>Inserire il lettore bene a fondo nella base di scarico.</translation>
    </message>
    <message>
        <source>The reader stopped answering. Leave it in the docking station until the download is complete, and try again.</source>
        <translation>Il lettore non risponde più. Lasciarlo nella base di scarico fino alla fine dello scarico e riprovare.</translation>
    </message>
    <message>
        <source>Downloading data from reader</source>
        <translation>Scarico dei dati dal lettore in corso</translation>
    </message>
    <message>
        <source>Reader not detected. Check reader and try again.</source>
        <translation>Lettore non rilevato. Controllare il lettore e riprovare.</translation>
    </message>
    <message>
        <source>Download Completed</source>
        <translation>Scarico completato</translation>
    </message>
    <message>
        <source>Processing Data</source>
        <translation>Elaborazione dei dati</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>Pronto...</translation>
    </message>
    <message>
        <source>Opening COM port...</source>
        <translation>Apertura della porta COM...</translation>
    </message>
    <message>
        <source>Could Not Open Com </source>
        <translation>Impossibile aprire COM </translation>
    </message>
    <message>
        <source>Please try another COM port or check that the COM port is not in use by another program.</source>
        <translation>Scegliere un’altra porta COM o controllare che nessun altro programma usi questa porta.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Looks for the docking station again</source>
        <translation>Cerca di nuovo la base di scarico</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Checking Docking Station...</source>
        <translation>Ricerca della base di scarico...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>nessun dispositivo</translation>
    </message>
    <message>
        <source>&amp;Open Report...</source>
        <translation>&amp;Apri rapporto...</translation>
    </message>
    <message>
        <source>Open the dialog of the selected report</source>
        <translation>Apre la finestra del rapporto selezionato</translation>
    </message>
    <message>
        <source>Report Name</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Descri&amp;ption</source>
        <translation>Descri&amp;zione</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Tour / Exception Report</source>
        <translation>Rapporto ronda / anomalie</translation>
    </message>
    <message>
        <source>Patrol Schedule</source>
        <translation>Programma ronda</translation>
    </message>
    <message>
        <source>Lists the times and places for a tour</source>
        <translation>Orari e punti di controllo di una ronda</translation>
    </message>
    <message>
        <source>Patrol Schedule Report</source>
        <translation>Programma ronda</translation>
    </message>
    <message>
        <source>Select the tour from which the tour schedule will be created.</source>
        <translation>Scegliere la ronda di cui creare il programma.</translation>
    </message>
    <message>
        <source>Tour Description:</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>Tour Tolerance:</source>
        <translation>Tolleranza:</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Hardware List Report</source>
        <translation>Elenco dispositivi</translation>
    </message>
    <message>
        <source>List all the defined buttons</source>
        <translation>Tutti i bottoni definiti</translation>
    </message>
    <message>
        <source>Select the options for the hardware report</source>
        <translation>Scegliere il contenuto dell’elenco dispositivi</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>E&amp;vent</source>
        <translation>&amp;Evento</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Punti di controllo</translation>
    </message>
    <message>
        <source>Incidents</source>
        <translation>Eventi</translation>
    </message>
    <message>
        <source>Hardware Code</source>
        <translation>Codice hardware</translation>
    </message>
    <message>
        <source>You must add at least one reader before this report can be used</source>
        <translation>Per questo rapporto occorre prima aggiungere almeno un lettore</translation>
    </message>
    <message>
        <source>A master adds tours on the Setup page.</source>
        <translation>Le ronde vengono aggiunte dal responsabile nella pagina Configurazione.</translation>
    </message>
    <message>
        <source>A master adds readers on the Setup page.</source>
        <translation>I lettori vengono aggiunti dal responsabile nella pagina Configurazione.</translation>
    </message>
    <message>
        <source>You must add at least one tour before this report can be used</source>
        <translation>Per questo rapporto occorre prima aggiungere almeno una ronda</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>You could not be logged in.  Closing the program now.</source>
        <translation>Accesso non riuscito. Il programma verrà chiuso.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarico</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapporti</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configurazione</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Button Name</source>
        <translation>Bottone</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Impossibile visualizzare la guida. A questo programma non è associata alcuna guida.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Wardlock authors. Free software under the MIT License.</source>
        <translation>Copyright © 2026 gli autori di Wardlock. Software libero con licenza MIT.</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Responsabile</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>The passwords do not match, please re-enter</source>
        <translation>Le password non corrispondono, inserirle di nuovo</translation>
    </message>
    <message>
        <source>Opening Database...</source>
        <translation>Apertura del database...</translation>
    </message>
    <message>
        <source>Compacting Database...</source>
        <translation>Compattazione del database...</translation>
    </message>
    <message>
        <source>Loading Application...</source>
        <translation>Caricamento del programma...</translation>
    </message>
    <message>
        <source>Initializing Online Help...</source>
        <translation>Preparazione della guida...</translation>
    </message>
    <message>
        <source>Error in creating new Tour</source>
        <translation>Errore durante la creazione della ronda</translation>
    </message>
    <message>
        <source>The tour has no points. A master adds them on the Setup page.</source>
        <translation>La ronda non ha punti. Vengono aggiunti dal responsabile nella pagina Configurazione.</translation>
    </message>
    <message>
        <source>This tour does not exist any more, or it cannot be read.</source>
        <translation>Questa ronda non esiste più o non è leggibile.</translation>
    </message>
    <message>
        <source>The settings cannot be saved. Changes you make now are lost when the program ends.</source>
        <translation>Impossibile salvare le impostazioni. Le modifiche andranno perse alla chiusura del programma.</translation>
    </message>
    <message>
        <source>EARLY</source>
        <translation>IN ANTICIPO</translation>
    </message>
    <message>
        <source>ON TIME</source>
        <translation>IN ORARIO</translation>
    </message>
    <message>
        <source>LATE</source>
        <translation>IN RITARDO</translation>
    </message>
    <message>
        <source>OUT OF SEQUENCE</source>
        <translation>FUORI SEQUENZA</translation>
    </message>
    <message>
        <source>%0:s points: %1:s</source>
        <translation>%0:s punti: %1:s</translation>
    </message>
    <message>
        <source>1 point: %0:s</source>
        <translation>1 punto: %0:s</translation>
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
        <translation>%0:s in orario</translation>
    </message>
    <message>
        <source>%0:s early</source>
        <translation>%0:s in anticipo</translation>
    </message>
    <message>
        <source>%0:s late</source>
        <translation>%0:s in ritardo</translation>
    </message>
    <message>
        <source>%0:s missing</source>
        <translation>%0:s senza lettura</translation>
    </message>
    <message>
        <source>NOT ON TOUR</source>
        <translation>FUORI RONDA</translation>
    </message>
    <message>
        <source>NO EXCEPTIONS</source>
        <translation>NESSUNA ANOMALIA</translation>
    </message>
    <message>
        <source>EXCEPTION</source>
        <translation>ANOMALIA</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>SENZA LETTURA</translation>
    </message>
    <message>
        <source>to</source>
        <translation>-</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>EVENTO</translation>
    </message>
    <message>
        <source>Generating Report</source>
        <translation>Creazione del rapporto</translation>
    </message>
    <message>
        <source>Please wait, generating report (this may take a few minutes)</source>
        <translation>Attendere, creazione del rapporto in corso (può richiedere alcuni minuti)</translation>
    </message>
    <message>
        <source>Date Range:   From %0:s to %1:s</source>
        <translation>Periodo:   dal %0:s al %1:s</translation>
    </message>
    <message>
        <source>No Data on the report</source>
        <translation>Nessun dato per il rapporto</translation>
    </message>
    <message>
        <source>See error.log for the reason.</source>
        <translation>Il motivo è indicato nel file error.log.</translation>
    </message>
    <message>
        <source>Please check these choices, and whether the reader has been downloaded.</source>
        <translation>Controllare questi criteri e se il lettore è stato scaricato.</translation>
    </message>
    <message>
        <source>There is no data to show for these parameters</source>
        <translation>Nessun dato corrisponde a questi criteri</translation>
    </message>
    <message>
        <source>The start date cannot be later than the end date</source>
        <translation>La data di inizio non può essere successiva alla data di fine</translation>
    </message>
    <message>
        <source>Reader Download Report</source>
        <translation>Rapporto scarichi</translation>
    </message>
    <message>
        <source>Lists details of each download to the PC for a reader</source>
        <translation>Dettagli di ogni scarico di un lettore</translation>
    </message>
    <message>
        <source>Download Time:</source>
        <translation>Scaricato il:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Date / Time</source>
        <translation>Data / Ora</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Database Report</source>
        <translation>Rapporto database</translation>
    </message>
    <message>
        <source>Raw data from database</source>
        <translation>Dati grezzi del database</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Print Date:</source>
        <translation>Stampato il:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Tour Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Tour Name:</source>
        <translation>Ronda:</translation>
    </message>
    <message>
        <source>Tolerance (min):</source>
        <translation>Tolleranza (min):</translation>
    </message>
    <message>
        <source>Site/Location</source>
        <translation>Sito / Punto di controllo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>End Of Report</source>
        <translation>Fine del rapporto</translation>
    </message>
    <message>
        <source>Show Events:</source>
        <translation>Con eventi:</translation>
    </message>
    <message>
        <source>Tour Report</source>
        <translation>Rapporto ronda</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>Rapporto anomalie</translation>
    </message>
    <message>
        <source>Reader ID</source>
        <translation>N. lettore</translation>
    </message>
    <message>
        <source>Transfer progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Transfer progress in percent</source>
        <translation>Avanzamento in percentuale</translation>
    </message>
    <message>
        <source>Do not remove the reader until download is complete.</source>
        <translation>Non togliere il lettore prima della fine dello scarico.</translation>
    </message>
    <message>
        <source>Docking Station</source>
        <translation>Base di scarico</translation>
    </message>
    <message>
        <source>Connection progress</source>
        <translation>Stato del collegamento</translation>
    </message>
    <message>
        <source>&amp;Download Data</source>
        <translation>S&amp;carica lettore</translation>
    </message>
    <message>
        <source>Stores the touches of the docked reader, then erases the reader</source>
        <translation>Salva le letture del lettore inserito e poi lo svuota</translation>
    </message>
    <message>
        <source>Erases the docked reader without storing its touches</source>
        <translation>Svuota il lettore inserito senza salvarne le letture</translation>
    </message>
    <message>
        <source>&amp;Erase Reader</source>
        <translation>S&amp;vuota lettore</translation>
    </message>
    <message>
        <source>Download result</source>
        <translation>Esito dello scarico</translation>
    </message>
    <message>
        <source>Touches read</source>
        <translation>Letture ricevute</translation>
    </message>
    <message>
        <source>Communications  Setup</source>
        <translation>Porta di comunicazione</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Porta:</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation>&amp;Dispositivo:</translation>
    </message>
    <message>
        <source>The device for this port number</source>
        <translation>Il dispositivo per questo numero di porta</translation>
    </message>
    <message>
        <source>Leave the device set to Automatic unless the docking station uses another one.</source>
        <translation>Lasciare il dispositivo su Automatico, a meno che la base di scarico non ne usi un altro.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>Testo della guida</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Cerca:</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommario</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nessun risultato.</translation>
    </message>
    <message>
        <source>Help on This &amp;Page</source>
        <translation>Guida su questa &amp;pagina</translation>
    </message>
    <message>
        <source>The help is in English.</source>
        <translation>La guida è in inglese.</translation>
    </message>
    <message>
        <source>It is not a help file of this program.</source>
        <translation>Non è un file della guida di questo programma.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Lingua:</translation>
    </message>
    <message>
        <source>&amp;Master</source>
        <translation>&amp;Responsabile</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Utente</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Titolo della pagina</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Strumenti</translation>
    </message>
    <message>
        <source>User &amp;Maintenance</source>
        <translation>&amp;Password</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Guida</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Com &amp;Options...</source>
        <translation>Porta &amp;COM...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommario</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Icona del programma</translation>
    </message>
    <message>
        <source>User Maintenance</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>&amp;Ripeti password:</translation>
    </message>
    <message>
        <source>Report Parameters</source>
        <translation>Criteri del rapporto</translation>
    </message>
    <message>
        <source>Select the tour and start date to create the report</source>
        <translation>Scegliere la ronda e la data del rapporto</translation>
    </message>
    <message>
        <source>Choose the reader</source>
        <translation>Scegliere il lettore</translation>
    </message>
    <message>
        <source>Select the date range and reader ID to create the Reader Download Report</source>
        <translation>Scegliere il periodo e il lettore del rapporto</translation>
    </message>
    <message>
        <source>Reset Dates</source>
        <translation>Data di oggi</translation>
    </message>
    <message>
        <source>Sets the range back to today</source>
        <translation>Riporta il periodo a oggi</translation>
    </message>
    <message>
        <source>Select the date range to create the report</source>
        <translation>Scegliere il periodo del rapporto</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Periodi:</translation>
    </message>
    <message>
        <source>Only this event; the places that were touched before it are shown with it</source>
        <translation>Solo questo evento, con i punti di controllo visitati prima</translation>
    </message>
    <message>
        <source>Only touches made while this site was the last one touched</source>
        <translation>Solo le letture fatte mentre questo sito era l’ultimo visitato</translation>
    </message>
    <message>
        <source>Sets the range and makes the report at once</source>
        <translation>Imposta il periodo e crea subito il rapporto</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Ultimi 7 giorni</translation>
    </message>
    <message>
        <source>Last30 Days</source>
        <translation>Ultimi 30 giorni</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Criteri</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Ronda</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>&amp;Ronda</translation>
    </message>
    <message>
        <source>Tour &amp;Date</source>
        <translation>&amp;Data della ronda</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Lettore</translation>
    </message>
    <message>
        <source>&amp;Reader</source>
        <translation>&amp;Lettore</translation>
    </message>
    <message>
        <source>Report Options</source>
        <translation>Contenuto del rapporto</translation>
    </message>
    <message>
        <source>Show &amp;All Tour Points</source>
        <translation>&amp;Tutti i punti della ronda</translation>
    </message>
    <message>
        <source>Only Show &amp;Exceptions</source>
        <translation>&amp;Solo anomalie</translation>
    </message>
    <message>
        <source>&amp;Include Events</source>
        <translation>&amp;Con eventi</translation>
    </message>
    <message>
        <source>Also shows the incidents recorded at each point</source>
        <translation>Mostra anche gli eventi registrati in ogni punto</translation>
    </message>
    <message>
        <source>&amp;Start Date</source>
        <translation>&amp;Data inizio</translation>
    </message>
    <message>
        <source>Start &amp;Time</source>
        <translation>&amp;Ora inizio</translation>
    </message>
    <message>
        <source>&amp;End Date</source>
        <translation>Data &amp;fine</translation>
    </message>
    <message>
        <source>En&amp;d Date</source>
        <translation>Data &amp;fine</translation>
    </message>
    <message>
        <source>End Ti&amp;me</source>
        <translation>Ora fi&amp;ne</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Elementi</translation>
    </message>
    <message>
        <source>No entry contains this.</source>
        <translation>Nessun elemento contiene questo testo.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Incident Report</source>
        <translation>Rapporto eventi</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers</source>
        <translation>Eventi per periodo e lettore</translation>
    </message>
    <message>
        <source>Incident Report with Sites</source>
        <translation>Rapporto eventi con siti</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers with sites</source>
        <translation>Eventi per periodo e lettore, con i siti</translation>
    </message>
    <message>
        <source>&amp;Readers:</source>
        <translation>&amp;Lettori:</translation>
    </message>
    <message>
        <source>&amp;Events:</source>
        <translation>&amp;Eventi:</translation>
    </message>
    <message>
        <source>Select Incident/s</source>
        <translation>Scegliere gli eventi</translation>
    </message>
    <message>
        <source>%0:s [%1:s] -- %2:s</source>
        <translation>%0:s [%1:s] -- %2:s</translation>
    </message>
    <message>
        <source>There must be at least one reader selected to create a report</source>
        <translation>Per creare il rapporto occorre scegliere almeno un lettore</translation>
    </message>
    <message>
        <source>An event was deleted meanwhile. Please open the dialog of the report again.</source>
        <translation>Nel frattempo un evento è stato eliminato. Riaprire la finestra del rapporto.</translation>
    </message>
    <message>
        <source>No reader is defined.</source>
        <translation>Nessun lettore definito.</translation>
    </message>
    <message>
        <source>No event is defined. A master adds event books on the Setup page.</source>
        <translation>Nessun evento definito. I libretti eventi vengono aggiunti dal responsabile nella pagina Configurazione.</translation>
    </message>
    <message>
        <source>There must be at least one event selected to create a report</source>
        <translation>Per creare il rapporto occorre scegliere almeno un evento</translation>
    </message>
    <message>
        <source>No incidents of this type were recorded</source>
        <translation>Nessun evento di questo tipo registrato</translation>
    </message>
    <message>
        <source>%0:s, %1:s,  %2:s</source>
        <translation>%0:s, %1:s,  %2:s</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Da:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>A:</translation>
    </message>
    <message>
        <source>No event has the code %0:s.</source>
        <translation>Nessun evento ha il codice %0:s.</translation>
    </message>
    <message>
        <source>There is no site named %0:s.</source>
        <translation>Nessun sito ha il nome %0:s.</translation>
    </message>
    <message>
        <source>Select the date and other filters to create the Incident report</source>
        <translation>Scegliere il periodo e gli altri criteri del rapporto</translation>
    </message>
    <message>
        <source>Incidents And Locations Report</source>
        <translation>Eventi e punti di controllo</translation>
    </message>
    <message>
        <source>Reader Name</source>
        <translation>Lettore</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>Ante&amp;prima</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Esporta in PDF</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Pagina successiva</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Numero di pagina</translation>
    </message>
    <message>
        <source>of</source>
        <translation>di</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Dimensioni reali</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Larghezza pagina</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Pagina intera</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>The report could not be exported.</source>
        <translation>Non è stato possibile esportare il rapporto.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Non è stato possibile stampare il rapporto.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Impostazioni lettore</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Sa&amp;me as PC Clock:</source>
        <translation>Ora del &amp;PC:</translation>
    </message>
    <message>
        <source>C&amp;ustom Time</source>
        <translation>Altra &amp;ora</translation>
    </message>
    <message>
        <source>Custom Time</source>
        <translation>Altra ora</translation>
    </message>
    <message>
        <source>What the reader does at each touch</source>
        <translation>Che cosa fa il lettore a ogni lettura</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Data:</translation>
    </message>
    <message>
        <source>PC time</source>
        <translation>Ora del PC</translation>
    </message>
    <message>
        <source>&amp;Automatically Set Time and Date to PC's settings when downloading Data</source>
        <translation>&amp;Regolare automaticamente l’orologio su quello del PC a ogni scarico</translation>
    </message>
    <message>
        <source>Reader Options</source>
        <translation>Segnali del lettore</translation>
    </message>
    <message>
        <source>&amp;Buzzer Enabled</source>
        <translation>&amp;Segnale acustico</translation>
    </message>
    <message>
        <source>&amp;LED Enabled</source>
        <translation>Indicatore &amp;LED</translation>
    </message>
    <message>
        <source>&amp;Vibration Enabled</source>
        <translation>&amp;Vibrazione</translation>
    </message>
    <message>
        <source>Buzzer Duration</source>
        <translation>Durata del segnale acustico</translation>
    </message>
    <message>
        <source>S&amp;hort</source>
        <translation>&amp;Breve</translation>
    </message>
    <message>
        <source>L&amp;ong</source>
        <translation>Lun&amp;ga</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Invia</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>If you select a custom date then this will only apply for one time</source>
        <translation>un’altra data scelta qui vale solo per questa volta.</translation>
    </message>
    <message>
        <source>The automatic update feature only uses the PC's date and time</source>
        <translation>La regolazione automatica segue sempre la data e l’ora del PC.</translation>
    </message>
    <message>
        <source>You must select at least one of the reader options (Led, Buzzer or Vibration)</source>
        <translation>Occorre scegliere almeno un segnale del lettore (LED, segnale acustico o vibrazione)</translation>
    </message>
    <message>
        <source>Reader update successful</source>
        <translation>Il lettore è stato impostato</translation>
    </message>
    <message>
        <source>Reader update failed.  Please try again.</source>
        <translation>Non è stato possibile impostare il lettore. Riprovare.</translation>
    </message>
    <message>
        <source>The options were set, but the clock was not.</source>
        <translation>I segnali sono stati impostati, ma l’orologio non è stato regolato.</translation>
    </message>
    <message>
        <source>The clock was set, but the options were not.</source>
        <translation>L’orologio è stato regolato, ma i segnali non sono stati impostati.</translation>
    </message>
    <message>
        <source>Add New Reader</source>
        <translation>Nuovo lettore</translation>
    </message>
    <message>
        <source>Add New Button</source>
        <translation>Nuovo bottone</translation>
    </message>
    <message>
        <source>Button ID:</source>
        <translation>Codice:</translation>
    </message>
    <message>
        <source>Button ID</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>This Reader ID already exists!</source>
        <translation>Questo lettore esiste già!</translation>
    </message>
    <message>
        <source>That key is already used!</source>
        <translation>Questo codice è già in uso!</translation>
    </message>
    <message>
        <source>&amp;Read ID</source>
        <translation>&amp;Leggi numero</translation>
    </message>
    <message>
        <source>&amp;Manual Entry</source>
        <translation>Inserimento &amp;manuale</translation>
    </message>
    <message>
        <source>Manual Entry</source>
        <translation>Inserimento manuale</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nome</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Not in use yet</source>
        <translation>Non ancora in uso</translation>
    </message>
    <message>
        <source>Reader ID Download Failed</source>
        <translation>Non è stato possibile leggere il numero del lettore</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name</source>
        <translation>Questo nome è già in uso. Inserire un altro nome</translation>
    </message>
    <message>
        <source>You must enter a name for this item</source>
        <translation>Inserire un nome</translation>
    </message>
    <message>
        <source>Enter the 6 digit button ID.  This is the last 6 digits visible on the front of the 'Dallas' Key. Valid characters are 0~9 and A~F.</source>
        <translation>Inserire il codice di 6 caratteri del bottone. Sono gli ultimi 6 caratteri visibili sul lato anteriore. Caratteri ammessi: da 0 a 9 e da A a F.</translation>
    </message>
    <message>
        <source>Illegal Value</source>
        <translation>Valore non valido</translation>
    </message>
    <message>
        <source>Firmware Version is</source>
        <translation>Versione firmware:</translation>
    </message>
    <message>
        <source>Reader Firmware Version Test</source>
        <translation>Versione firmware</translation>
    </message>
    <message>
        <source>&amp;Reader Options</source>
        <translation>&amp;Impostazioni lettore</translation>
    </message>
    <message>
        <source>Reader Firmware Version</source>
        <translation>Versione firmware</translation>
    </message>
    <message>
        <source>The reader did not report its firmware version.</source>
        <translation>Il lettore non ha comunicato la versione del firmware.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station and read its ID.</source>
        <translation>Inserire il lettore nella base di scarico e leggerne il numero.</translation>
    </message>
    <message>
        <source>Touch the reader in the docking station with the new button, or enter its ID by hand.</source>
        <translation>Toccare con il nuovo bottone il lettore inserito nella base di scarico, oppure inserire il codice a mano.</translation>
    </message>
    <message>
        <source>Only the master may do this.</source>
        <translation>Operazione riservata al responsabile.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Tour &amp;Copy</source>
        <translation>&amp;Copia ronda</translation>
    </message>
    <message>
        <source>Opens the selected row (double click)</source>
        <translation>Apre la riga selezionata (doppio clic)</translation>
    </message>
    <message>
        <source>Adds a new row</source>
        <translation>Aggiunge una riga</translation>
    </message>
    <message>
        <source>Deletes the selected row (Del)</source>
        <translation>Elimina la riga selezionata (Canc)</translation>
    </message>
    <message>
        <source>Makes a new tour as a copy of another</source>
        <translation>Crea una nuova ronda come copia di un’altra</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Definizioni</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Siti</translation>
    </message>
    <message>
        <source>Event Books</source>
        <translation>Libretti eventi</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Ronde</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Lettori</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Sito</translation>
    </message>
    <message>
        <source>S&amp;ite</source>
        <translation>&amp;Sito</translation>
    </message>
    <message>
        <source>Event Book</source>
        <translation>Libretto eventi</translation>
    </message>
    <message>
        <source>User Group</source>
        <translation>Gruppo utenti</translation>
    </message>
    <message>
        <source>Tour Name</source>
        <translation>Ronda</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Ora inizio</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Bottoni</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica:</translation>
    </message>
    <message>
        <source>Edit Reader</source>
        <translation>Modifica lettore</translation>
    </message>
    <message>
        <source>Edit Time</source>
        <translation>Modifica tempo</translation>
    </message>
    <message>
        <source>&amp;Edit Time</source>
        <translation>Modifica &amp;tempo</translation>
    </message>
    <message>
        <source>&amp;Minutes since the previous point</source>
        <translation>&amp;Minuti dal punto precedente</translation>
    </message>
    <message>
        <source>Select Tour to copy</source>
        <translation>Scegliere la ronda da copiare</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>Descri&amp;ption :</source>
        <translation>&amp;Descrizione:</translation>
    </message>
    <message>
        <source>Tour Start Ti&amp;me:</source>
        <translation>Ora ini&amp;zio:</translation>
    </message>
    <message>
        <source>To&amp;lerance (minutes):</source>
        <translation>Toll&amp;eranza (minuti):</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>Sit&amp;o:</translation>
    </message>
    <message>
        <source>A&amp;vailable Locations</source>
        <translation>&amp;Punti di controllo disponibili</translation>
    </message>
    <message>
        <source>Available Locations</source>
        <translation>Punti di controllo disponibili</translation>
    </message>
    <message>
        <source>Current T&amp;our Locations</source>
        <translation>P&amp;unti della ronda</translation>
    </message>
    <message>
        <source>Current Tour Locations</source>
        <translation>Punti della ronda</translation>
    </message>
    <message>
        <source>&amp;Add -&gt;</source>
        <translation>Agg&amp;iungi -&gt;</translation>
    </message>
    <message>
        <source>&lt;- &amp;Remove</source>
        <translation>&lt;- &amp;Rimuovi</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Sposta &amp;su</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Sposta &amp;giù</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>S&amp;vuota</translation>
    </message>
    <message>
        <source>Removes all points from the tour</source>
        <translation>Toglie tutti i punti dalla ronda</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Sa&amp;lva</translation>
    </message>
    <message>
        <source>Customize Tour Sequence</source>
        <translation>Definizione della ronda</translation>
    </message>
    <message>
        <source>Location Name</source>
        <translation>Punto di controllo</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Punto di controllo</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Punto di &amp;controllo</translation>
    </message>
    <message>
        <source>Add New User</source>
        <translation>Nuovo utente</translation>
    </message>
    <message>
        <source>Add New Location</source>
        <translation>Nuovo punto di controllo</translation>
    </message>
    <message>
        <source>Add New Event</source>
        <translation>Nuovo evento</translation>
    </message>
    <message>
        <source>No Item is selected</source>
        <translation>Nessun elemento selezionato</translation>
    </message>
    <message>
        <source>No sites yet. A site is a place with location buttons. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Ancora nessun sito. Un sito è un luogo con punti di controllo. Premere «Aggiungi» per crearne uno, poi «Modifica» per assegnargli i bottoni.</translation>
    </message>
    <message>
        <source>No event books yet. The buttons of an event book stand for incidents. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Ancora nessun libretto eventi. I bottoni di un libretto rappresentano eventi. Premere «Aggiungi» per crearne uno, poi «Modifica» per assegnargli i bottoni.</translation>
    </message>
    <message>
        <source>No tours yet. Press Add for a new one, then Edit to choose its locations.</source>
        <translation>Ancora nessuna ronda. Premere «Aggiungi» per crearne una, poi «Modifica» per sceglierne i punti di controllo.</translation>
    </message>
    <message>
        <source>No readers yet. Put a reader into the docking station and press Add. Without a docking station no reader can be added.</source>
        <translation>Ancora nessun lettore. Inserire un lettore nella base di scarico e premere «Aggiungi». Senza base di scarico non è possibile aggiungere lettori.</translation>
    </message>
    <message>
        <source>No buttons yet. Press Add, then touch the reader in the docking station with a button.</source>
        <translation>Ancora nessun bottone. Premere «Aggiungi», poi toccare con un bottone il lettore inserito nella base di scarico.</translation>
    </message>
    <message>
        <source>No buttons yet. A new button is read at the docking station, which is not connected.</source>
        <translation>Ancora nessun bottone. Un nuovo bottone si legge sulla base di scarico, che non è collegata.</translation>
    </message>
    <message>
        <source>This site has no location buttons yet. Add them on the Setup page: select the site and press Edit.</source>
        <translation>Questo sito non ha ancora punti di controllo. Si aggiungono nella pagina Configurazione: selezionare il sito e premere «Modifica».</translation>
    </message>
    <message>
        <source>The tour has no points yet. Select a location in the other list and press Add, in the order of the tour.</source>
        <translation>La ronda non ha ancora punti. Selezionare un punto di controllo nell’altro elenco e premere «Aggiungi», nell’ordine della ronda.</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text (Ctrl+F).</source>
        <translation>Mostra solo le righe che contengono questo testo (Ctrl+F).</translation>
    </message>
    <message>
        <source>A touch that is early or late by no more minutes than this counts as on time.</source>
        <translation>Una lettura in anticipo o in ritardo di non più di questi minuti è considerata in orario.</translation>
    </message>
    <message>
        <source>For the first point: the minutes since the start of the tour.</source>
        <translation>Per il primo punto: i minuti dall’inizio della ronda.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost.</source>
        <translation>«%0:s» non sarà più recuperabile.</translation>
    </message>
    <message>
        <source>"%0:s" and its buttons will be lost.</source>
        <translation>«%0:s» e i suoi bottoni non saranno più recuperabili.</translation>
    </message>
    <message>
        <source>"%0:s" and its points will be lost.</source>
        <translation>«%0:s» e i suoi punti non saranno più recuperabili.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost. Touches that are already downloaded are kept.</source>
        <translation>«%0:s» non sarà più recuperabile. Le letture già scaricate vengono conservate.</translation>
    </message>
    <message>
        <source>The name could not be saved. Nothing was changed.</source>
        <translation>Non è stato possibile salvare il nome. Non è stato modificato nulla.</translation>
    </message>
    <message>
        <source>The password is empty. Anyone could log in without one.</source>
        <translation>La password è vuota. Chiunque potrebbe accedere senza password.</translation>
    </message>
    <message>
        <source>Do you want to save it?</source>
        <translation>Salvarla comunque?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Eliminare davvero questo elemento?</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name.</source>
        <translation>Questo nome è già in uso. Inserire un altro nome.</translation>
    </message>
    <message>
        <source>You must enter a name for this group</source>
        <translation>Inserire un nome</translation>
    </message>
    <message>
        <source>A name or description cannot contain line breaks or other control characters.</source>
        <translation>Un nome o una descrizione non può contenere interruzioni di riga o altri caratteri di controllo.</translation>
    </message>
    <message>
        <source>The tour could not be saved. Nothing was changed.</source>
        <translation>Non è stato possibile salvare la ronda. Non è stato modificato nulla.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Discard them?</source>
        <translation>Le modifiche non sono state salvate. Scartarle?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete it?</source>
        <translation>Eliminare davvero questo gruppo?</translation>
    </message>
    <message>
        <source>The selected group contains sub-items</source>
        <translation>Il gruppo selezionato contiene bottoni.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this reader?</source>
        <translation>Eliminare davvero questo lettore?</translation>
    </message>
    <message>
        <source>You must add at least one location before you can define a tour</source>
        <translation>Per definire una ronda occorre prima aggiungere almeno un punto di controllo</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this tour?</source>
        <translation>Eliminare davvero questa ronda?</translation>
    </message>
    <message>
        <source>The selected Tour contains data.</source>
        <translation>La ronda selezionata contiene dati.</translation>
    </message>
    <message>
        <source>Cannot find any Tour Points to copy</source>
        <translation>Questa ronda non ha punti da copiare</translation>
    </message>
    <message>
        <source>Cannot assign two sequential tour points with the same location</source>
        <translation>Due punti consecutivi della ronda non possono avere lo stesso punto di controllo</translation>
    </message>
    <message>
        <source>The tolerance value can only range from 0 to 59 minutes</source>
        <translation>La tolleranza deve essere compresa tra 0 e 59 minuti</translation>
    </message>
    <message>
        <source>The total tour time can only range from 0 to 1439 minutes</source>
        <translation>La durata totale della ronda deve essere compresa tra 0 e 1439 minuti</translation>
    </message>
    <message>
        <source>Only valid numbers from 0 to 1439 can be entered</source>
        <translation>Sono ammessi solo numeri da 0 a 1439</translation>
    </message>
    <message>
        <source>The docking station is no longer connected. Enter the ID by hand, or go to the home page to connect again.</source>
        <translation>La base di scarico non è più collegata. Inserire il codice a mano, oppure passare alla pagina Home per ristabilire il collegamento.</translation>
    </message>
    <message>
        <source>&amp;Archive Events</source>
        <translation>&amp;Archivia letture</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Backup</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Company &amp;Info</source>
        <translation>Dati &amp;azienda</translation>
    </message>
    <message>
        <source>&amp;About </source>
        <translation>&amp;Informazioni </translation>
    </message>
    <message>
        <source>Company Info</source>
        <translation>Dati azienda</translation>
    </message>
    <message>
        <source>These lines are printed at the head of each report. After the next start, only the first 50 characters of a line are printed.</source>
        <translation>Queste righe vengono stampate in testa a ogni rapporto. Dal prossimo avvio verranno stampati solo i primi 50 caratteri di ogni riga.</translation>
    </message>
    <message>
        <source>Line &amp;1:</source>
        <translation>Riga &amp;1:</translation>
    </message>
    <message>
        <source>Line &amp;2:</source>
        <translation>Riga &amp;2:</translation>
    </message>
    <message>
        <source>Line &amp;3:</source>
        <translation>Riga &amp;3:</translation>
    </message>
    <message>
        <source>Line &amp;4:</source>
        <translation>Riga &amp;4:</translation>
    </message>
    <message>
        <source>The company info cannot be saved. This file cannot be written:</source>
        <translation>Impossibile salvare i dati dell’azienda. Non è possibile scrivere in questo file:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>You may use, change and pass on this program, as long as the text of the License stays with it.</source>
        <translation>È consentito usare, modificare e distribuire questo programma, purché sia accompagnato dal testo della licenza.</translation>
    </message>
    <message>
        <source>It comes without any warranty.</source>
        <translation>Viene fornito senza alcuna garanzia.</translation>
    </message>
    <message>
        <source>For a description of the program, choose Help, Contents.</source>
        <translation>Una descrizione del programma si trova in Guida, Sommario.</translation>
    </message>
    <message>
        <source>If something does not work, report it to the person who looks after this installation. Give the version and the build shown above, and send this file:</source>
        <translation>Se qualcosa non funziona, rivolgersi a chi si occupa di questa installazione. Indicare la versione e la build riportate sopra e inviare questo file:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contatto</translation>
    </message>
    <message>
        <source>WK3_ENG.HLP</source>
        <translation>WK3_ENG.HLP</translation>
    </message>
    <message>
        <source>This folder does not exist. Please choose another one.</source>
        <translation>Questa cartella non esiste. Sceglierne un’altra.</translation>
    </message>
    <message>
        <source>A file name can have at most 100 characters.</source>
        <translation>Un nome di file può avere al massimo 100 caratteri.</translation>
    </message>
    <message>
        <source>Select backup destination</source>
        <translation>Scegliere la destinazione del backup</translation>
    </message>
    <message>
        <source>Database Files (*.mdb)</source>
        <translation>File di database (*.mdb)</translation>
    </message>
    <message>
        <source>That filename is already in use. Please choose another filename</source>
        <translation>Questo nome di file è già in uso. Sceglierne un altro</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>The database is being copied and checked.</source>
        <translation>Copia e controllo del database in corso.</translation>
    </message>
    <message>
        <source>Successfully copied the database to :</source>
        <translation>Il database è stato copiato in:</translation>
    </message>
    <message>
        <source>The file was changed while it was read.</source>
        <translation>Il file è stato modificato durante la lettura.</translation>
    </message>
    <message>
        <source>The copy is damaged: %0:s</source>
        <translation>La copia è danneggiata: %0:s</translation>
    </message>
    <message>
        <source>The copy does not have the rows of the database.</source>
        <translation>La copia non ha le stesse righe del database.</translation>
    </message>
    <message>
        <source>The database was not copied.</source>
        <translation>Il database non è stato copiato.</translation>
    </message>
    <message>
        <source>The database itself is damaged.</source>
        <translation>Il database stesso è danneggiato.</translation>
    </message>
    <message>
        <source>The program itself uses this file. Please choose another filename.</source>
        <translation>Questo file è usato dal programma stesso. Scegliere un altro nome di file.</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>Il file o la sua cartella non esiste.</translation>
    </message>
    <message>
        <source>Removed:</source>
        <translation>Eliminato:</translation>
    </message>
    <message>
        <source>Not removed:</source>
        <translation>Non eliminato:</translation>
    </message>
    <message>
        <source>A program was killed while it wrote to this file. Its journal is still beside it.</source>
        <translation>Un programma è stato interrotto mentre scriveva in questo file. Il suo journal si trova ancora accanto al file.</translation>
    </message>
    <message>
        <source>You do not have permission to read this file.</source>
        <translation>Manca l’autorizzazione a leggere questo file.</translation>
    </message>
    <message>
        <source>It is not a database of this program, or it is damaged.</source>
        <translation>Non è un database di questo programma, oppure è danneggiato.</translation>
    </message>
    <message>
        <source>The database is damaged:</source>
        <translation>Il database è danneggiato:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Manca:</translation>
    </message>
    <message>
        <source>Buttons whose group does not exist:</source>
        <translation>Bottoni il cui gruppo non esiste:</translation>
    </message>
    <message>
        <source>Tour points whose tour does not exist:</source>
        <translation>Punti di ronda la cui ronda non esiste:</translation>
    </message>
    <message>
        <source>Tour points whose button does not exist:</source>
        <translation>Punti di ronda il cui bottone non esiste:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>Comma Delimited Text (*.csv)</source>
        <translation>Testo separato da virgole (*.csv)</translation>
    </message>
    <message>
        <source>Archive Events</source>
        <translation>Archivia letture</translation>
    </message>
    <message>
        <source>Choose the first and the last day. Their events are moved into a file and deleted from the database. They cannot be brought back from the file.</source>
        <translation>Scegliere il primo e l’ultimo giorno. Le letture di questo periodo vengono spostate in un file ed eliminate dal database. Non è possibile recuperarle dal file.</translation>
    </message>
    <message>
        <source>Warning: This action will permanently delete the events from the database.</source>
        <translation>Attenzione: le letture verranno eliminate definitivamente dal database.</translation>
    </message>
    <message>
        <source>Select location of backup database file</source>
        <translation>Scegliere la copia di backup da ripristinare</translation>
    </message>
    <message>
        <source>That filename cannot be found. Please choose another filename</source>
        <translation>File non trovato. Scegliere un altro file</translation>
    </message>
    <message>
        <source>This file is the database itself. Please choose a backup of it.</source>
        <translation>Questo file è il database stesso. Sceglierne una copia di backup.</translation>
    </message>
    <message>
        <source>Warning: This action will delete the existing database. You will loose ALL data in the existing database.</source>
        <translation>Attenzione: il database attuale verrà eliminato. TUTTI i dati che contiene andranno persi.</translation>
    </message>
    <message>
        <source>Are you sure you want to continue?</source>
        <translation>Continuare davvero?</translation>
    </message>
    <message>
        <source>There are no stored events within the dates you entered.</source>
        <translation>In questo periodo non ci sono letture salvate.</translation>
    </message>
    <message>
        <source>File Save Error: Archive Not Saved.  Please Try again.</source>
        <translation>Errore di salvataggio: l’archivio non è stato salvato. Riprovare.</translation>
    </message>
    <message>
        <source>Events Archived Successfully</source>
        <translation>Le letture sono state archiviate</translation>
    </message>
    <message>
        <source>Number of Events =</source>
        <translation>Numero di letture:</translation>
    </message>
    <message>
        <source>FileName = </source>
        <translation>Nome del file: </translation>
    </message>
    <message>
        <source>The events are written to the file and then deleted from the database.</source>
        <translation>Le letture vengono copiate nel file e poi eliminate dal database.</translation>
    </message>
    <message>
        <source>%0:s events were written, but the database deleted %1:s. Nothing was archived.</source>
        <translation>Sono state scritte %0:s letture, ma dal database ne sono state eliminate %1:s. Non è stato archiviato nulla.</translation>
    </message>
    <message>
        <source>The events were written to %0:s, but they are still in the database: %1:s</source>
        <translation>Le letture sono state copiate in %0:s, ma sono ancora nel database: %1:s</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristino</translation>
    </message>
    <message>
        <source>The backup is being copied and checked.</source>
        <translation>Copia e controllo del backup in corso.</translation>
    </message>
    <message>
        <source>The database is in use. Waiting until it is free.</source>
        <translation>Il database è in uso. In attesa che si liberi.</translation>
    </message>
    <message>
        <source>Successfully copied the database</source>
        <translation>Il database è stato ripristinato</translation>
    </message>
    <message>
        <source>Warning : The program will now close.</source>
        <translation>Attenzione: il programma verrà chiuso.</translation>
    </message>
    <message>
        <source>Please restart the program to continue.</source>
        <translation>Riavviare il programma per continuare.</translation>
    </message>
    <message>
        <source>The database was not restored. It is as it was before.</source>
        <translation>Il database non è stato ripristinato. È rimasto com’era.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program.</source>
        <translation>Il file scelto non è un database di questo programma.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program, its password is different, or it is damaged.</source>
        <translation>Il file scelto non è un database di questo programma, ha una password diversa oppure è danneggiato.</translation>
    </message>
    <message>
        <source>The chosen file is not a complete database of this program. It lacks %0:s.</source>
        <translation>Il file scelto non è un database completo di questo programma. Manca: %0:s.</translation>
    </message>
    <message>
        <source>The chosen file is damaged: %0:s</source>
        <translation>Il file scelto è danneggiato: %0:s</translation>
    </message>
    <message>
        <source>Another program has used the database meanwhile. Please try again.</source>
        <translation>Nel frattempo un altro programma ha usato il database. Riprovare.</translation>
    </message>
    <message>
        <source>The database was restored, but the disk reported an error. Please check it.</source>
        <translation>Il database è stato ripristinato, ma il disco ha segnalato un errore. Controllarlo.</translation>
    </message>
</context>
</TS>
