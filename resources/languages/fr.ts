<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Wardlock</name>
    <message>
        <source>The database is damaged. Some of its events can no longer be read.</source>
        <translation>La base de données est endommagée. Une partie de ses pointages n’est plus lisible.</translation>
    </message>
    <message>
        <source>Please restore a backup. Until then, no reader is erased.</source>
        <translation>Veuillez restaurer une sauvegarde. D’ici là, aucun lecteur ne sera effacé.</translation>
    </message>
    <message>
        <source>Another program is using it.</source>
        <translation>Un autre programme utilise la base de données.</translation>
    </message>
    <message>
        <source>It is in use by %0:s (process %1:s).</source>
        <translation>La base de données est utilisée par %0:s (processus %1:s).</translation>
    </message>
    <message>
        <source>It is in use on computer %2:s by %0:s (process %1:s).</source>
        <translation>La base de données est utilisée sur l’ordinateur %2:s par %0:s (processus %1:s).</translation>
    </message>
    <message>
        <source>The touches are stored, but the disk reported an error. The reader was not erased.</source>
        <translation>Les pointages sont enregistrés, mais le disque a signalé une erreur. Le lecteur n’a pas été effacé.</translation>
    </message>
    <message>
        <source>The disk or the network reported an error. Please check it and try again.</source>
        <translation>Le disque ou le réseau a signalé une erreur. Veuillez le vérifier, puis réessayer.</translation>
    </message>
    <message>
        <source>The database is damaged. The reader was not erased.</source>
        <translation>La base de données est endommagée. Le lecteur n’a pas été effacé.</translation>
    </message>
    <message>
        <source>A name or description can have at most 100 characters.</source>
        <translation>Un nom ou une description ne peut pas dépasser 100 caractères.</translation>
    </message>
    <message>
        <source>A password cannot contain line breaks or other control characters.</source>
        <translation>Un mot de passe ne peut contenir ni saut de ligne ni autre caractère de contrôle.</translation>
    </message>
    <message>
        <source>The report could not be created. See error.log for the reason.</source>
        <translation>Le rapport n’a pas pu être créé. La raison se trouve dans le fichier error.log.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>The folder %0:s does not exist. Please create it, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Le dossier %0:s n’existe pas. Veuillez le créer, ou en indiquer un autre dans WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>You may not write to the folder %0:s. Please ask for permission, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Les droits d’écriture manquent pour le dossier %0:s. Veuillez les demander, ou indiquer un autre dossier dans WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>There is no database yet. Please start the station once to create it.</source>
        <translation>Il n’y a pas encore de base de données. Veuillez lancer une fois le programme Wardlock, qui en crée une.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this file or its folder.</source>
        <translation>Les droits d’écriture manquent pour ce fichier ou son dossier.</translation>
    </message>
    <message>
        <source>Its password is different, or it is damaged. If it is damaged, please restore a backup.</source>
        <translation>Son mot de passe est différent, ou la base de données est endommagée. Si elle est endommagée, veuillez restaurer une sauvegarde.</translation>
    </message>
    <message>
        <source>It is damaged. Please restore a backup.</source>
        <translation>La base de données est endommagée. Veuillez restaurer une sauvegarde.</translation>
    </message>
    <message>
        <source>A journal next to the database did not belong to it. The database was opened without this journal.</source>
        <translation>Un journal placé à côté de la base de données ne lui appartenait pas. La base a été ouverte sans ce journal.</translation>
    </message>
    <message>
        <source>It was renamed to:</source>
        <translation>Il a été renommé en :</translation>
    </message>
    <message>
        <source>The User Name / Password are incorrect. Please try again.</source>
        <translation>Le nom d’utilisateur ou le mot de passe est incorrect. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Could not open the com port.</source>
        <translation>Impossible d’ouvrir le port COM.</translation>
    </message>
    <message>
        <source>Check settings and try again.</source>
        <translation>Vérifiez les réglages, puis réessayez.</translation>
    </message>
    <message>
        <source>The master chooses the port under Tools, Com Options.</source>
        <translation>Le responsable choisit le port sous Outils, Port COM.</translation>
    </message>
    <message>
        <source>Is the docking station plugged in, and is this its device?</source>
        <translation>La station d’accueil est-elle branchée, et est-ce bien son périphérique ?</translation>
    </message>
    <message>
        <source>Could not connect to the docking station.</source>
        <translation>Impossible de se connecter à la station d’accueil.</translation>
    </message>
    <message>
        <source>Check hardware and settings and try again.</source>
        <translation>Vérifiez le matériel et les réglages, puis réessayez.</translation>
    </message>
    <message>
        <source>Working in Offline Mode</source>
        <translation>Travail sans station d’accueil</translation>
    </message>
    <message>
        <source>Docking Station : OK</source>
        <translation>Station d’accueil : OK</translation>
    </message>
    <message>
        <source>Docking Station : Not Detected</source>
        <translation>Station d’accueil : non détectée</translation>
    </message>
    <message>
        <source>%0:s is gone. Plug it in again.</source>
        <translation>%0:s n’est plus connecté. Veuillez le rebrancher.</translation>
    </message>
    <message>
        <source>Last download</source>
        <translation>Dernier déchargement</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aucun pour l’instant</translation>
    </message>
    <message>
        <source>Tours of the last 24 hours</source>
        <translation>Rondes des dernières 24 heures</translation>
    </message>
    <message>
        <source>Click a tour, or press Enter, to open its report.</source>
        <translation>Cliquez sur une ronde, ou appuyez sur Entrée, pour ouvrir son rapport.</translation>
    </message>
    <message>
        <source>No tour was due.</source>
        <translation>Aucune ronde n’était prévue.</translation>
    </message>
    <message>
        <source>Readers and tours are not set up yet. A master does this on the Setup page.</source>
        <translation>Les lecteurs et les rondes ne sont pas encore définis. Le responsable le fait sur la page Paramétrage.</translation>
    </message>
    <message>
        <source>not downloaded or not walked</source>
        <translation>non déchargée ou non faite</translation>
    </message>
    <message>
        <source>On time</source>
        <translation>À l’heure</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>En avance</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Sans pointage</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>Define a site</source>
        <translation>Définir un site</translation>
    </message>
    <message>
        <source>Add the buttons of the site</source>
        <translation>Ajouter les pastilles du site</translation>
    </message>
    <message>
        <source>Add a reader</source>
        <translation>Ajouter un lecteur</translation>
    </message>
    <message>
        <source>Plan a tour</source>
        <translation>Planifier une ronde</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>The touches could not be stored. The reader was not erased.</source>
        <translation>Les pointages n’ont pas pu être enregistrés. Le lecteur n’a pas été effacé.</translation>
    </message>
    <message>
        <source>Touches stored: </source>
        <translation>Pointages enregistrés : </translation>
    </message>
    <message>
        <source>The reader was taken out of the station. It was not erased.</source>
        <translation>Le lecteur a été retiré de la station d’accueil. Il n’a pas été effacé.</translation>
    </message>
    <message>
        <source>Another reader is in the station. It was not erased.</source>
        <translation>Un autre lecteur se trouve dans la station d’accueil. Il n’a pas été effacé.</translation>
    </message>
    <message>
        <source>The reader has been used since it was read. It was not erased.</source>
        <translation>Le lecteur a servi depuis le déchargement. Il n’a pas été effacé.</translation>
    </message>
    <message>
        <source>The reader's memory continues after its end mark. The touches that were read are stored, but the reader was not erased.</source>
        <translation>La mémoire du lecteur se poursuit après sa marque de fin. Les pointages lus sont enregistrés, mais le lecteur n’a pas été effacé.</translation>
    </message>
    <message>
        <source>The reader holds a different number of records than it reports. The touches that were read are stored, but the reader was not erased.</source>
        <translation>Le lecteur ne contient pas le nombre d’enregistrements qu’il annonce. Les pointages lus sont enregistrés, mais le lecteur n’a pas été effacé.</translation>
    </message>
    <message>
        <source>The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It was not set.</source>
        <translation>L’horloge du lecteur n’accepte qu’une date comprise entre le 1er janvier 2000 et le 6 juin 2179. Elle n’a pas été réglée.</translation>
    </message>
    <message>
        <source>Reader Memory NOT erased!</source>
        <translation>Mémoire du lecteur NON effacée !</translation>
    </message>
    <message>
        <source>Reader Memory erased</source>
        <translation>Mémoire du lecteur effacée</translation>
    </message>
    <message>
        <source>Reader ID:</source>
        <translation>N° du lecteur :</translation>
    </message>
    <message>
        <source>KV-88 Wardlock Reports</source>
        <translation>Rapports KV-88 Wardlock</translation>
    </message>
    <message>
        <source>%0:s - Version %1:s</source>
        <translation>%0:s - Version %1:s</translation>
    </message>
    <message>
        <source>Download Failed</source>
        <translation>Échec du déchargement</translation>
    </message>
    <message>
        <source>Remove the cause, and then download the reader again.</source>
        <translation>Éliminez la cause, puis déchargez à nouveau le lecteur.</translation>
    </message>
    <message>
        <source>All touches are still in the reader.</source>
        <translation>Tous les pointages sont encore dans le lecteur.</translation>
    </message>
    <message>
        <source>Download Successful</source>
        <translation>Déchargement réussi</translation>
    </message>
    <message>
        <source>Reports of the tours in this download</source>
        <translation>Rapports des rondes de ce déchargement</translation>
    </message>
    <message>
        <source>More on the Reports page: %0:s</source>
        <translation>Autres, à la page Rapports : %0:s</translation>
    </message>
    <message>
        <source>Data Readings = </source>
        <translation>Pointages : </translation>
    </message>
    <message>
        <source>The Reader was empty</source>
        <translation>Le lecteur était vide</translation>
    </message>
    <message>
        <source>Reader Clock update failed.  Please try again.</source>
        <translation>L’horloge du lecteur n’a pas pu être réglée. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The download itself is complete. The clock can be set with Reader Options in the Tools menu.</source>
        <translation>Le déchargement lui-même est terminé. L’horloge peut être réglée par Outils, Réglages du lecteur.</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the reader? </source>
        <translation>Voulez-vous vraiment effacer la mémoire du lecteur ? </translation>
    </message>
    <message>
        <source>The reader that was downloaded last:</source>
        <translation>Dernier lecteur déchargé :</translation>
    </message>
    <message>
        <source>Touches that have not been downloaded yet will be lost.</source>
        <translation>Les pointages qui n’ont pas encore été déchargés seront perdus.</translation>
    </message>
    <message>
        <source>Reader Erase Failed.  Try again?</source>
        <translation>Le lecteur n’a pas pu être effacé. Réessayer ?</translation>
    </message>
    <message>
        <source>As long as the reader keeps its touches, each further download stores them again.</source>
        <translation>Tant que le lecteur garde ses pointages, chaque nouveau déchargement les enregistre une fois de plus.</translation>
    </message>
    <message>
        <source>Reader Erased</source>
        <translation>Lecteur effacé</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnue</translation>
    </message>
    <message>
        <source>Download Error</source>
        <translation>Erreur de déchargement</translation>
    </message>
    <message>
        <source>The names of the buttons could not be read from the database. See error.log for the reason.</source>
        <translation>Les noms des pastilles n’ont pas pu être lus dans la base de données. La raison se trouve dans le fichier error.log.</translation>
    </message>
    <message>
        <source>What the reader sent was not complete or not valid. Please try again.</source>
        <translation>Les données envoyées par le lecteur sont incomplètes ou non valides. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The connection to the docking station was lost. Check its cable and try again.</source>
        <translation>La connexion avec la station d’accueil est interrompue. Vérifiez le câble, puis réessayez.</translation>
    </message>
    <message>
        <source>The docking station could not read the reader. Take it out, put it in again, and try once more.</source>
        <translation>La station d’accueil n’a pas pu lire le lecteur. Retirez-le, remettez-le en place, puis réessayez.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station so that it sits firmly.</source>
        <translation>Enfoncez bien le lecteur dans la station d’accueil.</translation>
    </message>
    <message>
        <source>The reader stopped answering. Leave it in the docking station until the download is complete, and try again.</source>
        <translation>Le lecteur ne répond plus. Laissez-le dans la station d’accueil jusqu’à la fin du déchargement, et réessayez.</translation>
    </message>
    <message>
        <source>Downloading data from reader</source>
        <translation>Déchargement du lecteur en cours</translation>
    </message>
    <message>
        <source>Reader not detected. Check reader and try again.</source>
        <translation>Aucun lecteur détecté. Vérifiez le lecteur, puis réessayez.</translation>
    </message>
    <message>
        <source>Download Completed</source>
        <translation>Déchargement terminé</translation>
    </message>
    <message>
        <source>Processing Data</source>
        <translation>Traitement des données</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>Prêt...</translation>
    </message>
    <message>
        <source>Opening COM port...</source>
        <translation>Ouverture du port COM...</translation>
    </message>
    <message>
        <source>Could Not Open Com </source>
        <translation>Impossible d’ouvrir COM </translation>
    </message>
    <message>
        <source>Please try another COM port or check that the COM port is not in use by another program.</source>
        <translation>Essayez un autre port COM, ou vérifiez qu’aucun autre programme n’utilise ce port.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Looks for the docking station again</source>
        <translation>Recherche à nouveau la station d’accueil</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Checking Docking Station...</source>
        <translation>Recherche de la station d’accueil...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>aucun périphérique</translation>
    </message>
    <message>
        <source>&amp;Open Report...</source>
        <translation>Ou&amp;vrir le rapport...</translation>
    </message>
    <message>
        <source>Open the dialog of the selected report</source>
        <translation>Ouvre la fenêtre du rapport sélectionné</translation>
    </message>
    <message>
        <source>Report Name</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Descri&amp;ption</source>
        <translation>Descri&amp;ption</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Tour / Exception Report</source>
        <translation>Rapport de ronde / d’anomalies</translation>
    </message>
    <message>
        <source>Patrol Schedule</source>
        <translation>Planning de ronde</translation>
    </message>
    <message>
        <source>Lists the times and places for a tour</source>
        <translation>Heures et points de contrôle d’une ronde</translation>
    </message>
    <message>
        <source>Patrol Schedule Report</source>
        <translation>Planning de ronde</translation>
    </message>
    <message>
        <source>Select the tour from which the tour schedule will be created.</source>
        <translation>Choisissez la ronde dont le planning sera établi.</translation>
    </message>
    <message>
        <source>Tour Description:</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Tour Tolerance:</source>
        <translation>Tolérance :</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Hardware List Report</source>
        <translation>Liste du matériel</translation>
    </message>
    <message>
        <source>List all the defined buttons</source>
        <translation>Toutes les pastilles définies</translation>
    </message>
    <message>
        <source>Select the options for the hardware report</source>
        <translation>Choisissez le contenu de la liste du matériel</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>E&amp;vent</source>
        <translation>É&amp;vénement</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Points de contrôle</translation>
    </message>
    <message>
        <source>Incidents</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Hardware Code</source>
        <translation>Code matériel</translation>
    </message>
    <message>
        <source>You must add at least one reader before this report can be used</source>
        <translation>Pour ce rapport, il faut d’abord ajouter au moins un lecteur</translation>
    </message>
    <message>
        <source>A master adds tours on the Setup page.</source>
        <translation>Le responsable ajoute les rondes sur la page Paramétrage.</translation>
    </message>
    <message>
        <source>A master adds readers on the Setup page.</source>
        <translation>Le responsable ajoute les lecteurs sur la page Paramétrage.</translation>
    </message>
    <message>
        <source>You must add at least one tour before this report can be used</source>
        <translation>Pour ce rapport, il faut d’abord ajouter au moins une ronde</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>You could not be logged in.  Closing the program now.</source>
        <translation>La connexion a échoué. Le programme va se fermer.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Déchargement</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Paramétrage</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Button Name</source>
        <translation>Pastille</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Impossible d’afficher l’aide. Ce programme n’est accompagné d’aucune aide.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Wardlock authors. Free software under the MIT License.</source>
        <translation>Copyright © 2026 les auteurs de Wardlock. Logiciel libre sous licence MIT.</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Responsable</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>The passwords do not match, please re-enter</source>
        <translation>Les mots de passe ne correspondent pas, veuillez les saisir à nouveau</translation>
    </message>
    <message>
        <source>Opening Database...</source>
        <translation>Ouverture de la base de données...</translation>
    </message>
    <message>
        <source>Compacting Database...</source>
        <translation>Compactage de la base de données...</translation>
    </message>
    <message>
        <source>Loading Application...</source>
        <translation>Chargement du programme...</translation>
    </message>
    <message>
        <source>Initializing Online Help...</source>
        <translation>Préparation de l’aide...</translation>
    </message>
    <message>
        <source>Error in creating new Tour</source>
        <translation>Erreur lors de la création de la ronde</translation>
    </message>
    <message>
        <source>The tour has no points. A master adds them on the Setup page.</source>
        <translation>La ronde n’a aucun point. Le responsable les ajoute sur la page Paramétrage.</translation>
    </message>
    <message>
        <source>This tour does not exist any more, or it cannot be read.</source>
        <translation>Cette ronde n’existe plus, ou elle n’est pas lisible.</translation>
    </message>
    <message>
        <source>The settings cannot be saved. Changes you make now are lost when the program ends.</source>
        <translation>Les réglages ne peuvent pas être enregistrés. Les modifications seront perdues à la fermeture du programme.</translation>
    </message>
    <message>
        <source>EARLY</source>
        <translation>EN AVANCE</translation>
    </message>
    <message>
        <source>ON TIME</source>
        <translation>À L’HEURE</translation>
    </message>
    <message>
        <source>LATE</source>
        <translation>EN RETARD</translation>
    </message>
    <message>
        <source>OUT OF SEQUENCE</source>
        <translation>HORS SÉQUENCE</translation>
    </message>
    <message>
        <source>%0:s points: %1:s</source>
        <translation>%0:s points : %1:s</translation>
    </message>
    <message>
        <source>1 point: %0:s</source>
        <translation>1 point : %0:s</translation>
    </message>
    <message>
        <source>%0:s, %1:s</source>
        <translation>%0:s, %1:s</translation>
    </message>
    <message>
        <source>%0:s: %1:s</source>
        <translation>%0:s : %1:s</translation>
    </message>
    <message>
        <source>%0:s on time</source>
        <translation>%0:s à l’heure</translation>
    </message>
    <message>
        <source>%0:s early</source>
        <translation>%0:s en avance</translation>
    </message>
    <message>
        <source>%0:s late</source>
        <translation>%0:s en retard</translation>
    </message>
    <message>
        <source>%0:s missing</source>
        <translation>%0:s sans pointage</translation>
    </message>
    <message>
        <source>NOT ON TOUR</source>
        <translation>HORS RONDE</translation>
    </message>
    <message>
        <source>NO EXCEPTIONS</source>
        <translation>AUCUNE ANOMALIE</translation>
    </message>
    <message>
        <source>EXCEPTION</source>
        <translation>ANOMALIE</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>SANS POINTAGE</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>ÉVÉNEMENT</translation>
    </message>
    <message>
        <source>Generating Report</source>
        <translation>Création du rapport</translation>
    </message>
    <message>
        <source>Please wait, generating report (this may take a few minutes)</source>
        <translation>Veuillez patienter, le rapport est en cours de création (cela peut prendre quelques minutes)</translation>
    </message>
    <message>
        <source>Date Range:   From %0:s to %1:s</source>
        <translation>Période :   du %0:s au %1:s</translation>
    </message>
    <message>
        <source>No Data on the report</source>
        <translation>Aucune donnée pour ce rapport</translation>
    </message>
    <message>
        <source>See error.log for the reason.</source>
        <translation>La raison se trouve dans le fichier error.log.</translation>
    </message>
    <message>
        <source>Please check these choices, and whether the reader has been downloaded.</source>
        <translation>Veuillez vérifier ces critères, et que le lecteur a bien été déchargé.</translation>
    </message>
    <message>
        <source>There is no data to show for these parameters</source>
        <translation>Aucune donnée ne correspond à ces critères</translation>
    </message>
    <message>
        <source>The start date cannot be later than the end date</source>
        <translation>La date de début ne peut pas être postérieure à la date de fin</translation>
    </message>
    <message>
        <source>Reader Download Report</source>
        <translation>Rapport de déchargement</translation>
    </message>
    <message>
        <source>Lists details of each download to the PC for a reader</source>
        <translation>Détail de chaque déchargement d’un lecteur</translation>
    </message>
    <message>
        <source>Download Time:</source>
        <translation>Déchargé le :</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Date / Time</source>
        <translation>Date / Heure</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Database Report</source>
        <translation>Rapport de la base de données</translation>
    </message>
    <message>
        <source>Raw data from database</source>
        <translation>Données brutes de la base de données</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Print Date:</source>
        <translation>Imprimé le :</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Tour Date:</source>
        <translation>Date :</translation>
    </message>
    <message>
        <source>Tour Name:</source>
        <translation>Ronde :</translation>
    </message>
    <message>
        <source>Tolerance (min):</source>
        <translation>Tolérance (min) :</translation>
    </message>
    <message>
        <source>Site/Location</source>
        <translation>Site / Point de contrôle</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>End Of Report</source>
        <translation>Fin du rapport</translation>
    </message>
    <message>
        <source>Show Events:</source>
        <translation>Avec événements :</translation>
    </message>
    <message>
        <source>Tour Report</source>
        <translation>Rapport de ronde</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>Rapport d’anomalies</translation>
    </message>
    <message>
        <source>Reader ID</source>
        <translation>N° du lecteur</translation>
    </message>
    <message>
        <source>Transfer progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Transfer progress in percent</source>
        <translation>Progression en pour cent</translation>
    </message>
    <message>
        <source>Do not remove the reader until download is complete.</source>
        <translation>Ne pas retirer le lecteur avant la fin du déchargement.</translation>
    </message>
    <message>
        <source>Docking Station</source>
        <translation>Station d’accueil</translation>
    </message>
    <message>
        <source>Connection progress</source>
        <translation>Connexion en cours</translation>
    </message>
    <message>
        <source>&amp;Download Data</source>
        <translation>&amp;Décharger le lecteur</translation>
    </message>
    <message>
        <source>Stores the touches of the docked reader, then erases the reader</source>
        <translation>Enregistre les pointages du lecteur en place, puis efface le lecteur</translation>
    </message>
    <message>
        <source>Erases the docked reader without storing its touches</source>
        <translation>Efface le lecteur en place sans enregistrer ses pointages</translation>
    </message>
    <message>
        <source>&amp;Erase Reader</source>
        <translation>&amp;Effacer le lecteur</translation>
    </message>
    <message>
        <source>Download result</source>
        <translation>Résultat du déchargement</translation>
    </message>
    <message>
        <source>Touches read</source>
        <translation>Pointages lus</translation>
    </message>
    <message>
        <source>Communications  Setup</source>
        <translation>Port de communication</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port :</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation>Pé&amp;riphérique :</translation>
    </message>
    <message>
        <source>The device for this port number</source>
        <translation>Le périphérique associé à ce numéro de port</translation>
    </message>
    <message>
        <source>Leave the device set to Automatic unless the docking station uses another one.</source>
        <translation>Laissez le périphérique sur Automatique, sauf si la station d’accueil en utilise un autre.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>Texte de l’aide</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Rechercher :</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>Help on This &amp;Page</source>
        <translation>Aide sur cette pa&amp;ge</translation>
    </message>
    <message>
        <source>The help is in English.</source>
        <translation>L’aide est en anglais.</translation>
    </message>
    <message>
        <source>It is not a help file of this program.</source>
        <translation>Ce n’est pas un fichier d’aide de ce programme.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>&amp;Master</source>
        <translation>&amp;Responsable</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Utilisateur</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Titre de la page</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>User &amp;Maintenance</source>
        <translation>&amp;Mots de passe</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Com &amp;Options...</source>
        <translation>Port &amp;COM...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Icône du programme</translation>
    </message>
    <message>
        <source>User Maintenance</source>
        <translation>Mots de passe</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>&amp;Confirmer le mot de passe :</translation>
    </message>
    <message>
        <source>Report Parameters</source>
        <translation>Critères du rapport</translation>
    </message>
    <message>
        <source>Select the tour and start date to create the report</source>
        <translation>Choisissez la ronde et la date du rapport</translation>
    </message>
    <message>
        <source>Choose the reader</source>
        <translation>Choisissez le lecteur</translation>
    </message>
    <message>
        <source>Select the date range and reader ID to create the Reader Download Report</source>
        <translation>Choisissez la période et le lecteur du rapport</translation>
    </message>
    <message>
        <source>Reset Dates</source>
        <translation>Dates du jour</translation>
    </message>
    <message>
        <source>Sets the range back to today</source>
        <translation>Remet la période à aujourd’hui</translation>
    </message>
    <message>
        <source>Select the date range to create the report</source>
        <translation>Choisissez la période du rapport</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Périodes :</translation>
    </message>
    <message>
        <source>Only this event; the places that were touched before it are shown with it</source>
        <translation>Cet événement seulement, avec les points de contrôle visités avant lui</translation>
    </message>
    <message>
        <source>Only touches made while this site was the last one touched</source>
        <translation>Seulement les pointages effectués tant que ce site était le dernier visité</translation>
    </message>
    <message>
        <source>Sets the range and makes the report at once</source>
        <translation>Définit la période et crée aussitôt le rapport</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>Last30 Days</source>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Critères</translation>
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
        <translation>&amp;Date de la ronde</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>&amp;Reader</source>
        <translation>&amp;Lecteur</translation>
    </message>
    <message>
        <source>Report Options</source>
        <translation>Contenu du rapport</translation>
    </message>
    <message>
        <source>Show &amp;All Tour Points</source>
        <translation>&amp;Tous les points de la ronde</translation>
    </message>
    <message>
        <source>Only Show &amp;Exceptions</source>
        <translation>Anomalies &amp;seulement</translation>
    </message>
    <message>
        <source>&amp;Include Events</source>
        <translation>A&amp;vec les événements</translation>
    </message>
    <message>
        <source>Also shows the incidents recorded at each point</source>
        <translation>Montre aussi les événements enregistrés à chaque point</translation>
    </message>
    <message>
        <source>&amp;Start Date</source>
        <translation>Date de &amp;début</translation>
    </message>
    <message>
        <source>Start &amp;Time</source>
        <translation>&amp;Heure de début</translation>
    </message>
    <message>
        <source>&amp;End Date</source>
        <translation>Date de &amp;fin</translation>
    </message>
    <message>
        <source>En&amp;d Date</source>
        <translation>Date de &amp;fin</translation>
    </message>
    <message>
        <source>End Ti&amp;me</source>
        <translation>He&amp;ure de fin</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>No entry contains this.</source>
        <translation>Aucun élément ne contient ce texte.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Incident Report</source>
        <translation>Rapport d’événements</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers</source>
        <translation>Événements par période et par lecteur</translation>
    </message>
    <message>
        <source>Incident Report with Sites</source>
        <translation>Rapport d’événements avec sites</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers with sites</source>
        <translation>Événements par période et par lecteur, avec les sites</translation>
    </message>
    <message>
        <source>&amp;Readers:</source>
        <translation>&amp;Lecteurs :</translation>
    </message>
    <message>
        <source>&amp;Events:</source>
        <translation>É&amp;vénements :</translation>
    </message>
    <message>
        <source>Select Incident/s</source>
        <translation>Choisir les événements</translation>
    </message>
    <message>
        <source>%0:s [%1:s] -- %2:s</source>
        <translation>%0:s [%1:s] -- %2:s</translation>
    </message>
    <message>
        <source>There must be at least one reader selected to create a report</source>
        <translation>Pour créer le rapport, il faut choisir au moins un lecteur</translation>
    </message>
    <message>
        <source>An event was deleted meanwhile. Please open the dialog of the report again.</source>
        <translation>Entre-temps, un événement a été supprimé. Veuillez rouvrir la fenêtre du rapport.</translation>
    </message>
    <message>
        <source>No reader is defined.</source>
        <translation>Aucun lecteur n’est défini.</translation>
    </message>
    <message>
        <source>No event is defined. A master adds event books on the Setup page.</source>
        <translation>Aucun événement n’est défini. Le responsable ajoute les carnets d’événements sur la page Paramétrage.</translation>
    </message>
    <message>
        <source>There must be at least one event selected to create a report</source>
        <translation>Pour créer le rapport, il faut choisir au moins un événement</translation>
    </message>
    <message>
        <source>No incidents of this type were recorded</source>
        <translation>Aucun événement de ce type n’a été enregistré</translation>
    </message>
    <message>
        <source>%0:s, %1:s,  %2:s</source>
        <translation>%0:s, %1:s,  %2:s</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>De :</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>À :</translation>
    </message>
    <message>
        <source>No event has the code %0:s.</source>
        <translation>Aucun événement ne porte le code %0:s.</translation>
    </message>
    <message>
        <source>There is no site named %0:s.</source>
        <translation>Aucun site ne porte le nom %0:s.</translation>
    </message>
    <message>
        <source>Select the date and other filters to create the Incident report</source>
        <translation>Choisissez la période et les autres critères du rapport</translation>
    </message>
    <message>
        <source>Incidents And Locations Report</source>
        <translation>Événements et points de contrôle</translation>
    </message>
    <message>
        <source>Reader Name</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>A&amp;perçu</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Exporter en PDF</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Numéro de page</translation>
    </message>
    <message>
        <source>of</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Largeur de page</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The report could not be exported.</source>
        <translation>Le rapport n’a pas pu être exporté.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Le rapport n’a pas pu être imprimé.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Réglages du lecteur</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Sa&amp;me as PC Clock:</source>
        <translation>Heure du &amp;PC :</translation>
    </message>
    <message>
        <source>C&amp;ustom Time</source>
        <translation>Autre &amp;heure</translation>
    </message>
    <message>
        <source>Custom Time</source>
        <translation>Autre heure</translation>
    </message>
    <message>
        <source>What the reader does at each touch</source>
        <translation>Ce que fait le lecteur à chaque pointage</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Date :</translation>
    </message>
    <message>
        <source>PC time</source>
        <translation>Heure du PC</translation>
    </message>
    <message>
        <source>&amp;Automatically Set Time and Date to PC's settings when downloading Data</source>
        <translation>Régler a&amp;utomatiquement l’horloge sur celle du PC à chaque déchargement</translation>
    </message>
    <message>
        <source>Reader Options</source>
        <translation>Signaux du lecteur</translation>
    </message>
    <message>
        <source>&amp;Buzzer Enabled</source>
        <translation>&amp;Signal sonore</translation>
    </message>
    <message>
        <source>&amp;LED Enabled</source>
        <translation>&amp;Voyant LED</translation>
    </message>
    <message>
        <source>&amp;Vibration Enabled</source>
        <translation>V&amp;ibration</translation>
    </message>
    <message>
        <source>Buzzer Duration</source>
        <translation>Durée du signal sonore</translation>
    </message>
    <message>
        <source>S&amp;hort</source>
        <translation>&amp;Court</translation>
    </message>
    <message>
        <source>L&amp;ong</source>
        <translation>&amp;Long</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Remarque :</translation>
    </message>
    <message>
        <source>If you select a custom date then this will only apply for one time</source>
        <translation>une autre date choisie ici ne vaut que pour cette fois.</translation>
    </message>
    <message>
        <source>The automatic update feature only uses the PC's date and time</source>
        <translation>Le réglage automatique suit toujours la date et l’heure du PC.</translation>
    </message>
    <message>
        <source>You must select at least one of the reader options (Led, Buzzer or Vibration)</source>
        <translation>Il faut choisir au moins un signal du lecteur (LED, signal sonore ou vibration)</translation>
    </message>
    <message>
        <source>Reader update successful</source>
        <translation>Le lecteur a été réglé</translation>
    </message>
    <message>
        <source>Reader update failed.  Please try again.</source>
        <translation>Le lecteur n’a pas pu être réglé. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The options were set, but the clock was not.</source>
        <translation>Les signaux ont été réglés, mais pas l’horloge.</translation>
    </message>
    <message>
        <source>The clock was set, but the options were not.</source>
        <translation>L’horloge a été réglée, mais pas les signaux.</translation>
    </message>
    <message>
        <source>Add New Reader</source>
        <translation>Nouveau lecteur</translation>
    </message>
    <message>
        <source>Add New Button</source>
        <translation>Nouvelle pastille</translation>
    </message>
    <message>
        <source>Button ID:</source>
        <translation>Code :</translation>
    </message>
    <message>
        <source>Button ID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>This Reader ID already exists!</source>
        <translation>Ce lecteur existe déjà !</translation>
    </message>
    <message>
        <source>That key is already used!</source>
        <translation>Ce code est déjà utilisé !</translation>
    </message>
    <message>
        <source>&amp;Read ID</source>
        <translation>&amp;Lire le numéro</translation>
    </message>
    <message>
        <source>&amp;Manual Entry</source>
        <translation>&amp;Saisie manuelle</translation>
    </message>
    <message>
        <source>Manual Entry</source>
        <translation>Saisie manuelle</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Not in use yet</source>
        <translation>Pas encore utilisé</translation>
    </message>
    <message>
        <source>Reader ID Download Failed</source>
        <translation>Le numéro du lecteur n’a pas pu être lu</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name</source>
        <translation>Ce nom est déjà utilisé. Veuillez saisir un autre nom</translation>
    </message>
    <message>
        <source>You must enter a name for this item</source>
        <translation>Veuillez saisir un nom</translation>
    </message>
    <message>
        <source>Enter the 6 digit button ID.  This is the last 6 digits visible on the front of the 'Dallas' Key. Valid characters are 0~9 and A~F.</source>
        <translation>Saisissez le code à 6 caractères de la pastille. Ce sont les 6 derniers caractères visibles sur sa face avant. Caractères admis : 0 à 9 et A à F.</translation>
    </message>
    <message>
        <source>Illegal Value</source>
        <translation>Valeur non valide</translation>
    </message>
    <message>
        <source>Firmware Version is</source>
        <translation>Version du micrologiciel :</translation>
    </message>
    <message>
        <source>Reader Firmware Version Test</source>
        <translation>Version du micrologiciel</translation>
    </message>
    <message>
        <source>&amp;Reader Options</source>
        <translation>&amp;Réglages du lecteur</translation>
    </message>
    <message>
        <source>Reader Firmware Version</source>
        <translation>Version du micrologiciel</translation>
    </message>
    <message>
        <source>The reader did not report its firmware version.</source>
        <translation>Le lecteur n’a pas indiqué la version de son micrologiciel.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station and read its ID.</source>
        <translation>Placez le lecteur dans la station d’accueil, puis lisez son numéro.</translation>
    </message>
    <message>
        <source>Touch the reader in the docking station with the new button, or enter its ID by hand.</source>
        <translation>Mettez la nouvelle pastille en contact avec le lecteur placé dans la station d’accueil, ou saisissez son code à la main.</translation>
    </message>
    <message>
        <source>Only the master may do this.</source>
        <translation>Réservé au responsable.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Tour &amp;Copy</source>
        <translation>&amp;Copier la ronde</translation>
    </message>
    <message>
        <source>Opens the selected row (double click)</source>
        <translation>Ouvre la ligne sélectionnée (double-clic)</translation>
    </message>
    <message>
        <source>Adds a new row</source>
        <translation>Ajoute une ligne</translation>
    </message>
    <message>
        <source>Deletes the selected row (Del)</source>
        <translation>Supprime la ligne sélectionnée (Suppr)</translation>
    </message>
    <message>
        <source>Makes a new tour as a copy of another</source>
        <translation>Crée une ronde par copie d’une autre</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Définitions</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Sites</translation>
    </message>
    <message>
        <source>Event Books</source>
        <translation>Carnets d’événements</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rondes</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Lecteurs</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>S&amp;ite</source>
        <translation>&amp;Site</translation>
    </message>
    <message>
        <source>Event Book</source>
        <translation>Carnet d’événements</translation>
    </message>
    <message>
        <source>User Group</source>
        <translation>Groupe d’utilisateurs</translation>
    </message>
    <message>
        <source>Tour Name</source>
        <translation>Ronde</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Pastilles</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier :</translation>
    </message>
    <message>
        <source>Edit Reader</source>
        <translation>Modifier le lecteur</translation>
    </message>
    <message>
        <source>Edit Time</source>
        <translation>Modifier le délai</translation>
    </message>
    <message>
        <source>&amp;Edit Time</source>
        <translation>Modifier le dé&amp;lai</translation>
    </message>
    <message>
        <source>&amp;Minutes since the previous point</source>
        <translation>&amp;Minutes depuis le point précédent</translation>
    </message>
    <message>
        <source>Select Tour to copy</source>
        <translation>Choisir la ronde à copier</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>Descri&amp;ption :</source>
        <translation>Descri&amp;ption :</translation>
    </message>
    <message>
        <source>Tour Start Ti&amp;me:</source>
        <translation>Heure de dé&amp;but :</translation>
    </message>
    <message>
        <source>To&amp;lerance (minutes):</source>
        <translation>&amp;Tolérance (minutes) :</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>S&amp;ite :</translation>
    </message>
    <message>
        <source>A&amp;vailable Locations</source>
        <translation>Points de &amp;contrôle disponibles</translation>
    </message>
    <message>
        <source>Available Locations</source>
        <translation>Points de contrôle disponibles</translation>
    </message>
    <message>
        <source>Current T&amp;our Locations</source>
        <translation>Points de la r&amp;onde</translation>
    </message>
    <message>
        <source>Current Tour Locations</source>
        <translation>Points de la ronde</translation>
    </message>
    <message>
        <source>&amp;Add -&gt;</source>
        <translation>A&amp;jouter -&gt;</translation>
    </message>
    <message>
        <source>&lt;- &amp;Remove</source>
        <translation>&lt;- &amp;Retirer</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>&amp;Vider</translation>
    </message>
    <message>
        <source>Removes all points from the tour</source>
        <translation>Retire tous les points de la ronde</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Customize Tour Sequence</source>
        <translation>Composer la ronde</translation>
    </message>
    <message>
        <source>Location Name</source>
        <translation>Point de contrôle</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Point de contrôle</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Point de &amp;contrôle</translation>
    </message>
    <message>
        <source>Add New User</source>
        <translation>Nouvel utilisateur</translation>
    </message>
    <message>
        <source>Add New Location</source>
        <translation>Nouveau point de contrôle</translation>
    </message>
    <message>
        <source>Add New Event</source>
        <translation>Nouvel événement</translation>
    </message>
    <message>
        <source>No Item is selected</source>
        <translation>Aucun élément n’est sélectionné</translation>
    </message>
    <message>
        <source>No sites yet. A site is a place with location buttons. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Aucun site pour l’instant. Un site est un lieu équipé de points de contrôle. Cliquez sur « Ajouter » pour en créer un, puis sur « Modifier » pour lui attribuer ses pastilles.</translation>
    </message>
    <message>
        <source>No event books yet. The buttons of an event book stand for incidents. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Aucun carnet d’événements pour l’instant. Les pastilles d’un carnet correspondent à des événements. Cliquez sur « Ajouter » pour en créer un, puis sur « Modifier » pour lui attribuer ses pastilles.</translation>
    </message>
    <message>
        <source>No tours yet. Press Add for a new one, then Edit to choose its locations.</source>
        <translation>Aucune ronde pour l’instant. Cliquez sur « Ajouter » pour en créer une, puis sur « Modifier » pour choisir ses points de contrôle.</translation>
    </message>
    <message>
        <source>No readers yet. Put a reader into the docking station and press Add. Without a docking station no reader can be added.</source>
        <translation>Aucun lecteur pour l’instant. Placez un lecteur dans la station d’accueil et cliquez sur « Ajouter ». Sans station d’accueil, aucun lecteur ne peut être ajouté.</translation>
    </message>
    <message>
        <source>No buttons yet. Press Add, then touch the reader in the docking station with a button.</source>
        <translation>Aucune pastille pour l’instant. Cliquez sur « Ajouter », puis mettez une pastille en contact avec le lecteur placé dans la station d’accueil.</translation>
    </message>
    <message>
        <source>No buttons yet. A new button is read at the docking station, which is not connected.</source>
        <translation>Aucune pastille pour l’instant. Une nouvelle pastille se lit à la station d’accueil, qui n’est pas connectée.</translation>
    </message>
    <message>
        <source>This site has no location buttons yet. Add them on the Setup page: select the site and press Edit.</source>
        <translation>Ce site n’a pas encore de points de contrôle. Ils s’ajoutent sur la page Paramétrage : sélectionnez le site et cliquez sur « Modifier ».</translation>
    </message>
    <message>
        <source>The tour has no points yet. Select a location in the other list and press Add, in the order of the tour.</source>
        <translation>La ronde ne contient encore aucun point. Sélectionnez un point de contrôle dans l’autre liste et cliquez sur « Ajouter », dans l’ordre de la ronde.</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text (Ctrl+F).</source>
        <translation>N’affiche que les lignes qui contiennent ce texte (Ctrl+F).</translation>
    </message>
    <message>
        <source>A touch that is early or late by no more minutes than this counts as on time.</source>
        <translation>Un pointage qui ne dépasse pas cette avance ou ce retard, en minutes, est considéré comme à l’heure.</translation>
    </message>
    <message>
        <source>For the first point: the minutes since the start of the tour.</source>
        <translation>Pour le premier point : les minutes depuis le début de la ronde.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost.</source>
        <translation>« %0:s » ne sera plus récupérable.</translation>
    </message>
    <message>
        <source>"%0:s" and its buttons will be lost.</source>
        <translation>« %0:s » et ses pastilles ne seront plus récupérables.</translation>
    </message>
    <message>
        <source>"%0:s" and its points will be lost.</source>
        <translation>« %0:s » et ses points ne seront plus récupérables.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost. Touches that are already downloaded are kept.</source>
        <translation>« %0:s » ne sera plus récupérable. Les pointages déjà déchargés sont conservés.</translation>
    </message>
    <message>
        <source>The name could not be saved. Nothing was changed.</source>
        <translation>Le nom n’a pas pu être enregistré. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The password is empty. Anyone could log in without one.</source>
        <translation>Le mot de passe est vide. N’importe qui pourrait se connecter sans mot de passe.</translation>
    </message>
    <message>
        <source>Do you want to save it?</source>
        <translation>Voulez-vous l’enregistrer ?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Voulez-vous vraiment supprimer cet élément ?</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name.</source>
        <translation>Ce nom est déjà utilisé. Veuillez saisir un autre nom.</translation>
    </message>
    <message>
        <source>You must enter a name for this group</source>
        <translation>Veuillez saisir un nom</translation>
    </message>
    <message>
        <source>A name or description cannot contain line breaks or other control characters.</source>
        <translation>Un nom ou une description ne peut contenir ni saut de ligne ni autre caractère de contrôle.</translation>
    </message>
    <message>
        <source>The tour could not be saved. Nothing was changed.</source>
        <translation>La ronde n’a pas pu être enregistrée. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Discard them?</source>
        <translation>Les modifications ne sont pas enregistrées. Les abandonner ?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete it?</source>
        <translation>Voulez-vous vraiment supprimer ce groupe ?</translation>
    </message>
    <message>
        <source>The selected group contains sub-items</source>
        <translation>Le groupe sélectionné contient des pastilles.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this reader?</source>
        <translation>Voulez-vous vraiment supprimer ce lecteur ?</translation>
    </message>
    <message>
        <source>You must add at least one location before you can define a tour</source>
        <translation>Pour définir une ronde, il faut d’abord ajouter au moins un point de contrôle</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this tour?</source>
        <translation>Voulez-vous vraiment supprimer cette ronde ?</translation>
    </message>
    <message>
        <source>The selected Tour contains data.</source>
        <translation>La ronde sélectionnée contient des données.</translation>
    </message>
    <message>
        <source>Cannot find any Tour Points to copy</source>
        <translation>Cette ronde n’a aucun point à copier</translation>
    </message>
    <message>
        <source>Cannot assign two sequential tour points with the same location</source>
        <translation>Deux points consécutifs de la ronde ne peuvent pas avoir le même point de contrôle</translation>
    </message>
    <message>
        <source>The tolerance value can only range from 0 to 59 minutes</source>
        <translation>La tolérance doit être comprise entre 0 et 59 minutes</translation>
    </message>
    <message>
        <source>The total tour time can only range from 0 to 1439 minutes</source>
        <translation>La durée totale de la ronde doit être comprise entre 0 et 1439 minutes</translation>
    </message>
    <message>
        <source>Only valid numbers from 0 to 1439 can be entered</source>
        <translation>Seuls les nombres de 0 à 1439 sont admis</translation>
    </message>
    <message>
        <source>The docking station is no longer connected. Enter the ID by hand, or go to the home page to connect again.</source>
        <translation>La station d’accueil n’est plus connectée. Saisissez le code à la main, ou passez par la page d’accueil pour rétablir la connexion.</translation>
    </message>
    <message>
        <source>&amp;Archive Events</source>
        <translation>&amp;Archiver les pointages</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Sauvegarder</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>Company &amp;Info</source>
        <translation>&amp;Informations sur la société</translation>
    </message>
    <message>
        <source>&amp;About </source>
        <translation>À &amp;propos </translation>
    </message>
    <message>
        <source>Company Info</source>
        <translation>Informations sur la société</translation>
    </message>
    <message>
        <source>These lines are printed at the head of each report. After the next start, only the first 50 characters of a line are printed.</source>
        <translation>Ces lignes s’impriment en tête de chaque rapport. Après le prochain démarrage, seuls les 50 premiers caractères d’une ligne sont imprimés.</translation>
    </message>
    <message>
        <source>Line &amp;1:</source>
        <translation>Ligne &amp;1 :</translation>
    </message>
    <message>
        <source>Line &amp;2:</source>
        <translation>Ligne &amp;2 :</translation>
    </message>
    <message>
        <source>Line &amp;3:</source>
        <translation>Ligne &amp;3 :</translation>
    </message>
    <message>
        <source>Line &amp;4:</source>
        <translation>Ligne &amp;4 :</translation>
    </message>
    <message>
        <source>The company info cannot be saved. This file cannot be written:</source>
        <translation>Les informations sur la société ne peuvent pas être enregistrées. Impossible d’écrire dans ce fichier :</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>You may use, change and pass on this program, as long as the text of the License stays with it.</source>
        <translation>Vous pouvez utiliser, modifier et transmettre ce programme à condition d’y joindre le texte de la licence.</translation>
    </message>
    <message>
        <source>It comes without any warranty.</source>
        <translation>Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>For a description of the program, choose Help, Contents.</source>
        <translation>Vous trouverez une description du programme sous Aide, Sommaire.</translation>
    </message>
    <message>
        <source>If something does not work, report it to the person who looks after this installation. Give the version and the build shown above, and send this file:</source>
        <translation>En cas de problème, adressez-vous à la personne chargée de cette installation. Indiquez-lui la version et le numéro de build affichés ci-dessus, et envoyez-lui ce fichier :</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>WK3_ENG.HLP</source>
        <translation>WK3_ENG.HLP</translation>
    </message>
    <message>
        <source>This folder does not exist. Please choose another one.</source>
        <translation>Ce dossier n’existe pas. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>A file name can have at most 100 characters.</source>
        <translation>Un nom de fichier ne peut pas dépasser 100 caractères.</translation>
    </message>
    <message>
        <source>Select backup destination</source>
        <translation>Choisir la destination de la sauvegarde</translation>
    </message>
    <message>
        <source>Database Files (*.mdb)</source>
        <translation>Bases de données (*.mdb)</translation>
    </message>
    <message>
        <source>That filename is already in use. Please choose another filename</source>
        <translation>Ce nom de fichier est déjà utilisé. Veuillez en choisir un autre</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>The database is being copied and checked.</source>
        <translation>Copie et vérification de la base de données en cours.</translation>
    </message>
    <message>
        <source>Successfully copied the database to :</source>
        <translation>La base de données a été copiée vers :</translation>
    </message>
    <message>
        <source>The file was changed while it was read.</source>
        <translation>Le fichier a été modifié pendant sa lecture.</translation>
    </message>
    <message>
        <source>The copy is damaged: %0:s</source>
        <translation>La copie est endommagée : %0:s</translation>
    </message>
    <message>
        <source>The copy does not have the rows of the database.</source>
        <translation>La copie n’a pas les mêmes lignes que la base de données.</translation>
    </message>
    <message>
        <source>The database was not copied.</source>
        <translation>La base de données n’a pas été copiée.</translation>
    </message>
    <message>
        <source>The database itself is damaged.</source>
        <translation>La base de données elle-même est endommagée.</translation>
    </message>
    <message>
        <source>The program itself uses this file. Please choose another filename.</source>
        <translation>Ce fichier est utilisé par le programme lui-même. Veuillez choisir un autre nom de fichier.</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>Le fichier ou son dossier n’existe pas.</translation>
    </message>
    <message>
        <source>Removed:</source>
        <translation>Supprimé :</translation>
    </message>
    <message>
        <source>Not removed:</source>
        <translation>Non supprimé :</translation>
    </message>
    <message>
        <source>A program was killed while it wrote to this file. Its journal is still beside it.</source>
        <translation>Un programme a été interrompu pendant qu’il écrivait dans ce fichier. Son journal se trouve encore à côté.</translation>
    </message>
    <message>
        <source>You do not have permission to read this file.</source>
        <translation>Les droits de lecture manquent pour ce fichier.</translation>
    </message>
    <message>
        <source>It is not a database of this program, or it is damaged.</source>
        <translation>Ce n’est pas une base de données de ce programme, ou elle est endommagée.</translation>
    </message>
    <message>
        <source>The database is damaged:</source>
        <translation>La base de données est endommagée :</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Il manque :</translation>
    </message>
    <message>
        <source>Buttons whose group does not exist:</source>
        <translation>Pastilles dont le groupe n’existe pas :</translation>
    </message>
    <message>
        <source>Tour points whose tour does not exist:</source>
        <translation>Points de ronde dont la ronde n’existe pas :</translation>
    </message>
    <message>
        <source>Tour points whose button does not exist:</source>
        <translation>Points de ronde dont la pastille n’existe pas :</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Comma Delimited Text (*.csv)</source>
        <translation>Texte séparé par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>Archive Events</source>
        <translation>Archiver les pointages</translation>
    </message>
    <message>
        <source>Choose the first and the last day. Their events are moved into a file and deleted from the database. They cannot be brought back from the file.</source>
        <translation>Choisissez le premier et le dernier jour. Les pointages de cette période sont déplacés dans un fichier et supprimés de la base de données. Le fichier ne permet pas de les y remettre.</translation>
    </message>
    <message>
        <source>Warning: This action will permanently delete the events from the database.</source>
        <translation>Attention : les pointages seront définitivement supprimés de la base de données.</translation>
    </message>
    <message>
        <source>Select location of backup database file</source>
        <translation>Choisir la sauvegarde à restaurer</translation>
    </message>
    <message>
        <source>That filename cannot be found. Please choose another filename</source>
        <translation>Ce fichier est introuvable. Veuillez choisir un autre fichier</translation>
    </message>
    <message>
        <source>This file is the database itself. Please choose a backup of it.</source>
        <translation>Ce fichier est la base de données elle-même. Veuillez en choisir une sauvegarde.</translation>
    </message>
    <message>
        <source>Warning: This action will delete the existing database. You will loose ALL data in the existing database.</source>
        <translation>Attention : la base de données actuelle sera supprimée. TOUTES les données qu’elle contient seront perdues.</translation>
    </message>
    <message>
        <source>Are you sure you want to continue?</source>
        <translation>Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
        <source>There are no stored events within the dates you entered.</source>
        <translation>Aucun pointage n’est enregistré pour cette période.</translation>
    </message>
    <message>
        <source>File Save Error: Archive Not Saved.  Please Try again.</source>
        <translation>Erreur d’enregistrement : l’archive n’a pas été enregistrée. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Events Archived Successfully</source>
        <translation>Les pointages ont été archivés</translation>
    </message>
    <message>
        <source>Number of Events =</source>
        <translation>Nombre de pointages :</translation>
    </message>
    <message>
        <source>FileName = </source>
        <translation>Nom du fichier : </translation>
    </message>
    <message>
        <source>The events are written to the file and then deleted from the database.</source>
        <translation>Les pointages sont copiés dans le fichier, puis supprimés de la base de données.</translation>
    </message>
    <message>
        <source>%0:s events were written, but the database deleted %1:s. Nothing was archived.</source>
        <translation>%0:s pointages ont été écrits, mais %1:s ont été supprimés de la base de données. Rien n’a été archivé.</translation>
    </message>
    <message>
        <source>The events were written to %0:s, but they are still in the database: %1:s</source>
        <translation>Les pointages ont été copiés dans %0:s, mais ils sont encore dans la base de données : %1:s</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restauration</translation>
    </message>
    <message>
        <source>The backup is being copied and checked.</source>
        <translation>Copie et vérification de la sauvegarde en cours.</translation>
    </message>
    <message>
        <source>The database is in use. Waiting until it is free.</source>
        <translation>La base de données est utilisée. En attente de sa libération.</translation>
    </message>
    <message>
        <source>Successfully copied the database</source>
        <translation>La base de données a été restaurée</translation>
    </message>
    <message>
        <source>Warning : The program will now close.</source>
        <translation>Attention : le programme va maintenant se fermer.</translation>
    </message>
    <message>
        <source>Please restart the program to continue.</source>
        <translation>Veuillez redémarrer le programme pour continuer.</translation>
    </message>
    <message>
        <source>The database was not restored. It is as it was before.</source>
        <translation>La base de données n’a pas été restaurée. Elle est restée telle quelle.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program.</source>
        <translation>Le fichier choisi n’est pas une base de données de ce programme.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program, its password is different, or it is damaged.</source>
        <translation>Le fichier choisi n’est pas une base de données de ce programme, son mot de passe est différent, ou il est endommagé.</translation>
    </message>
    <message>
        <source>The chosen file is not a complete database of this program. It lacks %0:s.</source>
        <translation>Le fichier choisi n’est pas une base de données complète de ce programme. Il y manque : %0:s.</translation>
    </message>
    <message>
        <source>The chosen file is damaged: %0:s</source>
        <translation>Le fichier choisi est endommagé : %0:s</translation>
    </message>
    <message>
        <source>Another program has used the database meanwhile. Please try again.</source>
        <translation>Entre-temps, un autre programme a utilisé la base de données. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The database was restored, but the disk reported an error. Please check it.</source>
        <translation>La base de données a été restaurée, mais le disque a signalé une erreur. Veuillez le vérifier.</translation>
    </message>
</context>
</TS>
