<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Wardlock</name>
    <message>
        <source>The database is damaged. Some of its events can no longer be read.</source>
        <translation>La base de datos está dañada. Parte de sus lecturas ya no se puede leer.</translation>
    </message>
    <message>
        <source>Please restore a backup. Until then, no reader is erased.</source>
        <translation>Restaure una copia de seguridad. Hasta entonces no se borrará ningún lector.</translation>
    </message>
    <message>
        <source>Another program is using it.</source>
        <translation>Otro programa está usando la base de datos.</translation>
    </message>
    <message>
        <source>It is in use by %0:s (process %1:s).</source>
        <translation>La base de datos está en uso por %0:s (proceso %1:s).</translation>
    </message>
    <message>
        <source>It is in use on computer %2:s by %0:s (process %1:s).</source>
        <translation>La base de datos está en uso en el equipo %2:s por %0:s (proceso %1:s).</translation>
    </message>
    <message>
        <source>The touches are stored, but the disk reported an error. The reader was not erased.</source>
        <translation>Las lecturas se han guardado, pero el disco ha comunicado un error. El lector no se ha borrado.</translation>
    </message>
    <message>
        <source>The disk or the network reported an error. Please check it and try again.</source>
        <translation>El disco o la red ha comunicado un error. Compruébelo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The database is damaged. The reader was not erased.</source>
        <translation>La base de datos está dañada. El lector no se ha borrado.</translation>
    </message>
    <message>
        <source>A name or description can have at most 100 characters.</source>
        <translation>Un nombre o una descripción puede tener 100 caracteres como máximo.</translation>
    </message>
    <message>
        <source>A password cannot contain line breaks or other control characters.</source>
        <translation>Una contraseña no puede contener saltos de línea ni otros caracteres de control.</translation>
    </message>
    <message>
        <source>The report could not be created. See error.log for the reason.</source>
        <translation>No se ha podido crear el informe. El motivo figura en el archivo error.log.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>The folder %0:s does not exist. Please create it, or choose another folder in WARDLOCK_HOME.</source>
        <translation>La carpeta %0:s no existe. Créela o indique otra en WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>You may not write to the folder %0:s. Please ask for permission, or choose another folder in WARDLOCK_HOME.</source>
        <translation>No tiene permiso para escribir en la carpeta %0:s. Solicítelo o indique otra carpeta en WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>There is no database yet. Please start the station once to create it.</source>
        <translation>Todavía no hay ninguna base de datos. Inicie una vez el programa Wardlock, que la creará.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this file or its folder.</source>
        <translation>No tiene permiso para escribir en este archivo o en su carpeta.</translation>
    </message>
    <message>
        <source>Its password is different, or it is damaged. If it is damaged, please restore a backup.</source>
        <translation>Su contraseña es distinta, o la base de datos está dañada. Si está dañada, restaure una copia de seguridad.</translation>
    </message>
    <message>
        <source>It is damaged. Please restore a backup.</source>
        <translation>La base de datos está dañada. Restaure una copia de seguridad.</translation>
    </message>
    <message>
        <source>A journal next to the database did not belong to it. The database was opened without this journal.</source>
        <translation>Junto a la base de datos había un diario que no le correspondía. La base de datos se ha abierto sin él.</translation>
    </message>
    <message>
        <source>It was renamed to:</source>
        <translation>Ahora se llama:</translation>
    </message>
    <message>
        <source>The User Name / Password are incorrect. Please try again.</source>
        <translation>El nombre de usuario o la contraseña no son correctos. Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Could not open the com port.</source>
        <translation>No se ha podido abrir el puerto COM.</translation>
    </message>
    <message>
        <source>Check settings and try again.</source>
        <translation>Compruebe los ajustes y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The master chooses the port under Tools, Com Options.</source>
        <translation>El responsable elige el puerto en Herramientas, Puerto COM.</translation>
    </message>
    <message>
        <source>Is the docking station plugged in, and is this its device?</source>
        <translation>¿Está conectada la base de descarga y es este su dispositivo?</translation>
    </message>
    <message>
        <source>Could not connect to the docking station.</source>
        <translation>No hay conexión con la base de descarga.</translation>
    </message>
    <message>
        <source>Check hardware and settings and try again.</source>
        <translation>Compruebe el equipo y los ajustes y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Working in Offline Mode</source>
        <translation>Se trabaja sin base de descarga</translation>
    </message>
    <message>
        <source>Docking Station : OK</source>
        <translation>Base de descarga: OK</translation>
    </message>
    <message>
        <source>Docking Station : Not Detected</source>
        <translation>Base de descarga: no detectada</translation>
    </message>
    <message>
        <source>%0:s is gone. Plug it in again.</source>
        <translation>%0:s ya no está conectado. Vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>Last download</source>
        <translation>Última descarga</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ninguna todavía</translation>
    </message>
    <message>
        <source>Tours of the last 24 hours</source>
        <translation>Rondas de las últimas 24 horas</translation>
    </message>
    <message>
        <source>Click a tour, or press Enter, to open its report.</source>
        <translation>Haga clic en una ronda, o pulse Intro, para abrir su informe.</translation>
    </message>
    <message>
        <source>No tour was due.</source>
        <translation>No había ninguna ronda prevista.</translation>
    </message>
    <message>
        <source>Readers and tours are not set up yet. A master does this on the Setup page.</source>
        <translation>Los lectores y las rondas aún no están definidos. El responsable lo hace en la página Configuración.</translation>
    </message>
    <message>
        <source>not downloaded or not walked</source>
        <translation>no descargada o no hecha</translation>
    </message>
    <message>
        <source>On time</source>
        <translation>A tiempo</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Con adelanto</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Con retraso</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Sin lectura</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>Define a site</source>
        <translation>Definir un recinto</translation>
    </message>
    <message>
        <source>Add the buttons of the site</source>
        <translation>Añadir los botones del recinto</translation>
    </message>
    <message>
        <source>Add a reader</source>
        <translation>Añadir un lector</translation>
    </message>
    <message>
        <source>Plan a tour</source>
        <translation>Planificar una ronda</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>The touches could not be stored. The reader was not erased.</source>
        <translation>No se han podido guardar las lecturas. El lector no se ha borrado.</translation>
    </message>
    <message>
        <source>Touches stored: </source>
        <translation>Lecturas guardadas: </translation>
    </message>
    <message>
        <source>The reader was taken out of the station. It was not erased.</source>
        <translation>El lector se ha retirado de la base de descarga. No se ha borrado.</translation>
    </message>
    <message>
        <source>Another reader is in the station. It was not erased.</source>
        <translation>En la base de descarga hay otro lector. No se ha borrado.</translation>
    </message>
    <message>
        <source>The reader has been used since it was read. It was not erased.</source>
        <translation>El lector se ha usado después de la descarga. No se ha borrado.</translation>
    </message>
    <message>
        <source>The reader's memory continues after its end mark. The touches that were read are stored, but the reader was not erased.</source>
        <translation>La memoria del lector continúa después de la marca de fin. Las lecturas recibidas se han guardado, pero el lector no se ha borrado.</translation>
    </message>
    <message>
        <source>The reader holds a different number of records than it reports. The touches that were read are stored, but the reader was not erased.</source>
        <translation>El lector no contiene el número de registros que indica. Las lecturas recibidas se han guardado, pero el lector no se ha borrado.</translation>
    </message>
    <message>
        <source>The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It was not set.</source>
        <translation>El reloj del lector solo admite fechas del 1 de enero de 2000 al 6 de junio de 2179. No se ha ajustado.</translation>
    </message>
    <message>
        <source>Reader Memory NOT erased!</source>
        <translation>¡La memoria del lector NO se ha borrado!</translation>
    </message>
    <message>
        <source>Reader Memory erased</source>
        <translation>Memoria del lector borrada</translation>
    </message>
    <message>
        <source>Reader ID:</source>
        <translation>N.º del lector:</translation>
    </message>
    <message>
        <source>KV-88 Wardlock Reports</source>
        <translation>Informes KV-88 Wardlock</translation>
    </message>
    <message>
        <source>%0:s - Version %1:s</source>
        <translation>%0:s - Versión %1:s</translation>
    </message>
    <message>
        <source>Download Failed</source>
        <translation>La descarga ha fallado</translation>
    </message>
    <message>
        <source>Remove the cause, and then download the reader again.</source>
        <translation>Elimine la causa y vuelva a descargar el lector.</translation>
    </message>
    <message>
        <source>All touches are still in the reader.</source>
        <translation>Todas las lecturas siguen en el lector.</translation>
    </message>
    <message>
        <source>Download Successful</source>
        <translation>Descarga correcta</translation>
    </message>
    <message>
        <source>Reports of the tours in this download</source>
        <translation>Informes de las rondas de esta descarga</translation>
    </message>
    <message>
        <source>More on the Reports page: %0:s</source>
        <translation>Más en la página Informes: %0:s</translation>
    </message>
    <message>
        <source>Data Readings = </source>
        <translation>Lecturas: </translation>
    </message>
    <message>
        <source>The Reader was empty</source>
        <translation>El lector estaba vacío</translation>
    </message>
    <message>
        <source>Reader Clock update failed.  Please try again.</source>
        <translation>No se ha podido ajustar el reloj del lector. Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The download itself is complete. The clock can be set with Reader Options in the Tools menu.</source>
        <translation>La descarga en sí ha terminado. El reloj se puede ajustar en Herramientas, Ajustes del lector.</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the reader? </source>
        <translation>¿Seguro que desea borrar la memoria del lector? </translation>
    </message>
    <message>
        <source>The reader that was downloaded last:</source>
        <translation>Último lector descargado:</translation>
    </message>
    <message>
        <source>Touches that have not been downloaded yet will be lost.</source>
        <translation>Las lecturas que aún no se hayan descargado se perderán.</translation>
    </message>
    <message>
        <source>Reader Erase Failed.  Try again?</source>
        <translation>No se ha podido borrar el lector. ¿Volver a intentarlo?</translation>
    </message>
    <message>
        <source>As long as the reader keeps its touches, each further download stores them again.</source>
        <translation>Mientras el lector conserve sus lecturas, cada nueva descarga volverá a guardarlas.</translation>
    </message>
    <message>
        <source>Reader Erased</source>
        <translation>Lector borrado</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Download Error</source>
        <translation>Error de descarga</translation>
    </message>
    <message>
        <source>The names of the buttons could not be read from the database. See error.log for the reason.</source>
        <translation>No se han podido leer los nombres de los botones en la base de datos. El motivo figura en el archivo error.log.</translation>
    </message>
    <message>
        <source>What the reader sent was not complete or not valid. Please try again.</source>
        <translation>Los datos enviados por el lector están incompletos o no son válidos. Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The connection to the docking station was lost. Check its cable and try again.</source>
        <translation>Se ha perdido la conexión con la base de descarga. Compruebe el cable y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The docking station could not read the reader. Take it out, put it in again, and try once more.</source>
        <translation>La base de descarga no ha podido leer el lector. Retírelo, colóquelo de nuevo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station so that it sits firmly.</source>
        <translation>Coloque el lector bien encajado en la base de descarga.</translation>
    </message>
    <message>
        <source>The reader stopped answering. Leave it in the docking station until the download is complete, and try again.</source>
        <translation>El lector ha dejado de responder. Déjelo en la base de descarga hasta que termine la descarga y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Downloading data from reader</source>
        <translation>Descargando datos del lector</translation>
    </message>
    <message>
        <source>Reader not detected. Check reader and try again.</source>
        <translation>No se ha detectado ningún lector. Compruébelo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Download Completed</source>
        <translation>Descarga terminada</translation>
    </message>
    <message>
        <source>Processing Data</source>
        <translation>Procesando los datos</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>Listo...</translation>
    </message>
    <message>
        <source>Opening COM port...</source>
        <translation>Abriendo el puerto COM...</translation>
    </message>
    <message>
        <source>Could Not Open Com </source>
        <translation>No se puede abrir COM </translation>
    </message>
    <message>
        <source>Please try another COM port or check that the COM port is not in use by another program.</source>
        <translation>Elija otro puerto COM o compruebe que ningún otro programa use este puerto.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Looks for the docking station again</source>
        <translation>Busca de nuevo la base de descarga</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Checking Docking Station...</source>
        <translation>Buscando la base de descarga...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>ningún dispositivo</translation>
    </message>
    <message>
        <source>&amp;Open Report...</source>
        <translation>Abrir &amp;informe...</translation>
    </message>
    <message>
        <source>Open the dialog of the selected report</source>
        <translation>Abre la ventana del informe seleccionado</translation>
    </message>
    <message>
        <source>Report Name</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Descri&amp;ption</source>
        <translation>Descri&amp;pción</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Tour / Exception Report</source>
        <translation>Informe de ronda / anomalías</translation>
    </message>
    <message>
        <source>Patrol Schedule</source>
        <translation>Horario de ronda</translation>
    </message>
    <message>
        <source>Lists the times and places for a tour</source>
        <translation>Horas y puntos de control de una ronda</translation>
    </message>
    <message>
        <source>Patrol Schedule Report</source>
        <translation>Horario de ronda</translation>
    </message>
    <message>
        <source>Select the tour from which the tour schedule will be created.</source>
        <translation>Elija la ronda cuyo horario desea obtener.</translation>
    </message>
    <message>
        <source>Tour Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Tour Tolerance:</source>
        <translation>Tolerancia:</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Hardware List Report</source>
        <translation>Lista de equipos</translation>
    </message>
    <message>
        <source>List all the defined buttons</source>
        <translation>Todos los botones definidos</translation>
    </message>
    <message>
        <source>Select the options for the hardware report</source>
        <translation>Elija el contenido de la lista de equipos</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Incidencia</translation>
    </message>
    <message>
        <source>E&amp;vent</source>
        <translation>&amp;Incidencia</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Puntos de control</translation>
    </message>
    <message>
        <source>Incidents</source>
        <translation>Incidencias</translation>
    </message>
    <message>
        <source>Hardware Code</source>
        <translation>Código de hardware</translation>
    </message>
    <message>
        <source>You must add at least one reader before this report can be used</source>
        <translation>Para este informe hay que añadir antes al menos un lector</translation>
    </message>
    <message>
        <source>A master adds tours on the Setup page.</source>
        <translation>El responsable añade las rondas en la página Configuración.</translation>
    </message>
    <message>
        <source>A master adds readers on the Setup page.</source>
        <translation>El responsable añade los lectores en la página Configuración.</translation>
    </message>
    <message>
        <source>You must add at least one tour before this report can be used</source>
        <translation>Para este informe hay que añadir antes al menos una ronda</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>You could not be logged in.  Closing the program now.</source>
        <translation>No se ha podido iniciar la sesión. El programa se cerrará.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Button Name</source>
        <translation>Botón</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>No se puede mostrar la ayuda. Este programa no tiene ninguna ayuda asociada.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Wardlock authors. Free software under the MIT License.</source>
        <translation>Copyright © 2026 los autores de Wardlock. Software libre con licencia MIT.</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Responsable</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>The passwords do not match, please re-enter</source>
        <translation>Las contraseñas no coinciden. Vuelva a introducirlas</translation>
    </message>
    <message>
        <source>Opening Database...</source>
        <translation>Abriendo la base de datos...</translation>
    </message>
    <message>
        <source>Compacting Database...</source>
        <translation>Compactando la base de datos...</translation>
    </message>
    <message>
        <source>Loading Application...</source>
        <translation>Cargando el programa...</translation>
    </message>
    <message>
        <source>Initializing Online Help...</source>
        <translation>Preparando la ayuda...</translation>
    </message>
    <message>
        <source>Error in creating new Tour</source>
        <translation>Error al crear la ronda</translation>
    </message>
    <message>
        <source>The tour has no points. A master adds them on the Setup page.</source>
        <translation>La ronda no tiene puntos. El responsable los añade en la página Configuración.</translation>
    </message>
    <message>
        <source>This tour does not exist any more, or it cannot be read.</source>
        <translation>Esta ronda ya no existe o no se puede leer.</translation>
    </message>
    <message>
        <source>The settings cannot be saved. Changes you make now are lost when the program ends.</source>
        <translation>No se pueden guardar los ajustes. Los cambios se perderán al cerrar el programa.</translation>
    </message>
    <message>
        <source>EARLY</source>
        <translation>CON ADELANTO</translation>
    </message>
    <message>
        <source>ON TIME</source>
        <translation>A TIEMPO</translation>
    </message>
    <message>
        <source>LATE</source>
        <translation>CON RETRASO</translation>
    </message>
    <message>
        <source>OUT OF SEQUENCE</source>
        <translation>FUERA DE ORDEN</translation>
    </message>
    <message>
        <source>%0:s points: %1:s</source>
        <translation>%0:s puntos: %1:s</translation>
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
        <translation>%0:s a tiempo</translation>
    </message>
    <message>
        <source>%0:s early</source>
        <translation>%0:s con adelanto</translation>
    </message>
    <message>
        <source>%0:s late</source>
        <translation>%0:s con retraso</translation>
    </message>
    <message>
        <source>%0:s missing</source>
        <translation>%0:s sin lectura</translation>
    </message>
    <message>
        <source>NOT ON TOUR</source>
        <translation>FUERA DE RONDA</translation>
    </message>
    <message>
        <source>NO EXCEPTIONS</source>
        <translation>SIN ANOMALÍAS</translation>
    </message>
    <message>
        <source>EXCEPTION</source>
        <translation>ANOMALÍA</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>SIN LECTURA</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>INCIDENCIA</translation>
    </message>
    <message>
        <source>Generating Report</source>
        <translation>Creando el informe</translation>
    </message>
    <message>
        <source>Please wait, generating report (this may take a few minutes)</source>
        <translation>Espere, se está creando el informe (puede tardar unos minutos)</translation>
    </message>
    <message>
        <source>Date Range:   From %0:s to %1:s</source>
        <translation>Período:   del %0:s al %1:s</translation>
    </message>
    <message>
        <source>No Data on the report</source>
        <translation>No hay datos para el informe</translation>
    </message>
    <message>
        <source>See error.log for the reason.</source>
        <translation>El motivo figura en el archivo error.log.</translation>
    </message>
    <message>
        <source>Please check these choices, and whether the reader has been downloaded.</source>
        <translation>Compruebe estos criterios y si el lector se ha descargado.</translation>
    </message>
    <message>
        <source>There is no data to show for these parameters</source>
        <translation>Ningún dato cumple estos criterios</translation>
    </message>
    <message>
        <source>The start date cannot be later than the end date</source>
        <translation>La fecha inicial no puede ser posterior a la final</translation>
    </message>
    <message>
        <source>Reader Download Report</source>
        <translation>Informe de descargas</translation>
    </message>
    <message>
        <source>Lists details of each download to the PC for a reader</source>
        <translation>Detalle de cada descarga de un lector</translation>
    </message>
    <message>
        <source>Download Time:</source>
        <translation>Descargado el:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Date / Time</source>
        <translation>Fecha / Hora</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Database Report</source>
        <translation>Informe de la base de datos</translation>
    </message>
    <message>
        <source>Raw data from database</source>
        <translation>Datos sin procesar de la base de datos</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Print Date:</source>
        <translation>Impreso el:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Tour Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Tour Name:</source>
        <translation>Ronda:</translation>
    </message>
    <message>
        <source>Tolerance (min):</source>
        <translation>Tolerancia (min):</translation>
    </message>
    <message>
        <source>Site/Location</source>
        <translation>Recinto / Punto de control</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>End Of Report</source>
        <translation>Fin del informe</translation>
    </message>
    <message>
        <source>Show Events:</source>
        <translation>Con incidencias:</translation>
    </message>
    <message>
        <source>Tour Report</source>
        <translation>Informe de ronda</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>Informe de anomalías</translation>
    </message>
    <message>
        <source>Reader ID</source>
        <translation>N.º del lector</translation>
    </message>
    <message>
        <source>Transfer progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Transfer progress in percent</source>
        <translation>Progreso en tanto por ciento</translation>
    </message>
    <message>
        <source>Do not remove the reader until download is complete.</source>
        <translation>No retire el lector hasta que termine la descarga.</translation>
    </message>
    <message>
        <source>Docking Station</source>
        <translation>Base de descarga</translation>
    </message>
    <message>
        <source>Connection progress</source>
        <translation>Estado de la conexión</translation>
    </message>
    <message>
        <source>&amp;Download Data</source>
        <translation>&amp;Descargar el lector</translation>
    </message>
    <message>
        <source>Stores the touches of the docked reader, then erases the reader</source>
        <translation>Guarda las lecturas del lector colocado y después borra el lector</translation>
    </message>
    <message>
        <source>Erases the docked reader without storing its touches</source>
        <translation>Borra el lector colocado sin guardar sus lecturas</translation>
    </message>
    <message>
        <source>&amp;Erase Reader</source>
        <translation>&amp;Borrar el lector</translation>
    </message>
    <message>
        <source>Download result</source>
        <translation>Resultado de la descarga</translation>
    </message>
    <message>
        <source>Touches read</source>
        <translation>Lecturas recibidas</translation>
    </message>
    <message>
        <source>Communications  Setup</source>
        <translation>Puerto de comunicación</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Puerto:</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation>&amp;Dispositivo:</translation>
    </message>
    <message>
        <source>The device for this port number</source>
        <translation>El dispositivo de este número de puerto</translation>
    </message>
    <message>
        <source>Leave the device set to Automatic unless the docking station uses another one.</source>
        <translation>Deje el dispositivo en Automático, salvo que la base de descarga use otro.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>Texto de la ayuda</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>No se ha encontrado nada.</translation>
    </message>
    <message>
        <source>Help on This &amp;Page</source>
        <translation>Ayuda de esta pá&amp;gina</translation>
    </message>
    <message>
        <source>The help is in English.</source>
        <translation>La ayuda está en inglés.</translation>
    </message>
    <message>
        <source>It is not a help file of this program.</source>
        <translation>No es un archivo de ayuda de este programa.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Master</source>
        <translation>&amp;Responsable</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Usuario</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Con&amp;traseña:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Título de la página</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>User &amp;Maintenance</source>
        <translation>&amp;Contraseñas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Com &amp;Options...</source>
        <translation>&amp;Puerto COM...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Icono del programa</translation>
    </message>
    <message>
        <source>User Maintenance</source>
        <translation>Contraseñas</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>&amp;Repetir contraseña:</translation>
    </message>
    <message>
        <source>Report Parameters</source>
        <translation>Criterios del informe</translation>
    </message>
    <message>
        <source>Select the tour and start date to create the report</source>
        <translation>Elija la ronda y la fecha del informe</translation>
    </message>
    <message>
        <source>Choose the reader</source>
        <translation>Elija el lector</translation>
    </message>
    <message>
        <source>Select the date range and reader ID to create the Reader Download Report</source>
        <translation>Elija el período y el lector del informe</translation>
    </message>
    <message>
        <source>Reset Dates</source>
        <translation>Fecha de hoy</translation>
    </message>
    <message>
        <source>Sets the range back to today</source>
        <translation>Vuelve a poner el período en hoy</translation>
    </message>
    <message>
        <source>Select the date range to create the report</source>
        <translation>Elija el período del informe</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Períodos:</translation>
    </message>
    <message>
        <source>Only this event; the places that were touched before it are shown with it</source>
        <translation>Solo esta incidencia, con los puntos de control visitados antes de ella</translation>
    </message>
    <message>
        <source>Only touches made while this site was the last one touched</source>
        <translation>Solo las lecturas hechas mientras este recinto era el último visitado</translation>
    </message>
    <message>
        <source>Sets the range and makes the report at once</source>
        <translation>Fija el período y crea el informe de inmediato</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Últimos 7 días</translation>
    </message>
    <message>
        <source>Last30 Days</source>
        <translation>Últimos 30 días</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Criterios</translation>
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
        <translation>&amp;Fecha de la ronda</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Lector</translation>
    </message>
    <message>
        <source>&amp;Reader</source>
        <translation>&amp;Lector</translation>
    </message>
    <message>
        <source>Report Options</source>
        <translation>Contenido del informe</translation>
    </message>
    <message>
        <source>Show &amp;All Tour Points</source>
        <translation>&amp;Todos los puntos de la ronda</translation>
    </message>
    <message>
        <source>Only Show &amp;Exceptions</source>
        <translation>&amp;Solo anomalías</translation>
    </message>
    <message>
        <source>&amp;Include Events</source>
        <translation>Con &amp;incidencias</translation>
    </message>
    <message>
        <source>Also shows the incidents recorded at each point</source>
        <translation>Muestra también las incidencias registradas en cada punto</translation>
    </message>
    <message>
        <source>&amp;Start Date</source>
        <translation>&amp;Fecha inicial</translation>
    </message>
    <message>
        <source>Start &amp;Time</source>
        <translation>&amp;Hora inicial</translation>
    </message>
    <message>
        <source>&amp;End Date</source>
        <translation>Fecha fi&amp;nal</translation>
    </message>
    <message>
        <source>En&amp;d Date</source>
        <translation>Fecha fi&amp;nal</translation>
    </message>
    <message>
        <source>End Ti&amp;me</source>
        <translation>H&amp;ora final</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>No entry contains this.</source>
        <translation>Ningún elemento contiene este texto.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Incident Report</source>
        <translation>Informe de incidencias</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers</source>
        <translation>Incidencias por período y lector</translation>
    </message>
    <message>
        <source>Incident Report with Sites</source>
        <translation>Informe de incidencias con recintos</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers with sites</source>
        <translation>Incidencias por período y lector, con los recintos</translation>
    </message>
    <message>
        <source>&amp;Readers:</source>
        <translation>&amp;Lectores:</translation>
    </message>
    <message>
        <source>&amp;Events:</source>
        <translation>&amp;Incidencias:</translation>
    </message>
    <message>
        <source>Select Incident/s</source>
        <translation>Elegir incidencias</translation>
    </message>
    <message>
        <source>%0:s [%1:s] -- %2:s</source>
        <translation>%0:s [%1:s] -- %2:s</translation>
    </message>
    <message>
        <source>There must be at least one reader selected to create a report</source>
        <translation>Para crear el informe hay que elegir al menos un lector</translation>
    </message>
    <message>
        <source>An event was deleted meanwhile. Please open the dialog of the report again.</source>
        <translation>Entretanto se ha eliminado una incidencia. Vuelva a abrir la ventana del informe.</translation>
    </message>
    <message>
        <source>No reader is defined.</source>
        <translation>No hay ningún lector definido.</translation>
    </message>
    <message>
        <source>No event is defined. A master adds event books on the Setup page.</source>
        <translation>No hay ninguna incidencia definida. El responsable añade los libros de incidencias en la página Configuración.</translation>
    </message>
    <message>
        <source>There must be at least one event selected to create a report</source>
        <translation>Para crear el informe hay que elegir al menos una incidencia</translation>
    </message>
    <message>
        <source>No incidents of this type were recorded</source>
        <translation>No se ha registrado ninguna incidencia de este tipo</translation>
    </message>
    <message>
        <source>%0:s, %1:s,  %2:s</source>
        <translation>%0:s, %1:s,  %2:s</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>De:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>A:</translation>
    </message>
    <message>
        <source>No event has the code %0:s.</source>
        <translation>Ninguna incidencia tiene el código %0:s.</translation>
    </message>
    <message>
        <source>There is no site named %0:s.</source>
        <translation>No hay ningún recinto con el nombre %0:s.</translation>
    </message>
    <message>
        <source>Select the date and other filters to create the Incident report</source>
        <translation>Elija el período y los demás criterios del informe</translation>
    </message>
    <message>
        <source>Incidents And Locations Report</source>
        <translation>Incidencias y puntos de control</translation>
    </message>
    <message>
        <source>Reader Name</source>
        <translation>Lector</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Incidencia</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Exportar a PDF</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Número de página</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Ancho de página</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Página completa</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The report could not be exported.</source>
        <translation>No se ha podido exportar el informe.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>No se ha podido imprimir el informe.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Ajustes del lector</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Sa&amp;me as PC Clock:</source>
        <translation>Hora del &amp;PC:</translation>
    </message>
    <message>
        <source>C&amp;ustom Time</source>
        <translation>Otra &amp;hora</translation>
    </message>
    <message>
        <source>Custom Time</source>
        <translation>Otra hora</translation>
    </message>
    <message>
        <source>What the reader does at each touch</source>
        <translation>Lo que hace el lector en cada lectura</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Fecha:</translation>
    </message>
    <message>
        <source>PC time</source>
        <translation>Hora del PC</translation>
    </message>
    <message>
        <source>&amp;Automatically Set Time and Date to PC's settings when downloading Data</source>
        <translation>&amp;Ajustar el reloj automáticamente con el del PC en cada descarga</translation>
    </message>
    <message>
        <source>Reader Options</source>
        <translation>Señales del lector</translation>
    </message>
    <message>
        <source>&amp;Buzzer Enabled</source>
        <translation>&amp;Señal acústica</translation>
    </message>
    <message>
        <source>&amp;LED Enabled</source>
        <translation>Indicador &amp;LED</translation>
    </message>
    <message>
        <source>&amp;Vibration Enabled</source>
        <translation>&amp;Vibración</translation>
    </message>
    <message>
        <source>Buzzer Duration</source>
        <translation>Duración de la señal acústica</translation>
    </message>
    <message>
        <source>S&amp;hort</source>
        <translation>Co&amp;rta</translation>
    </message>
    <message>
        <source>L&amp;ong</source>
        <translation>Lar&amp;ga</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>If you select a custom date then this will only apply for one time</source>
        <translation>si elige otra fecha, solo valdrá para esta vez.</translation>
    </message>
    <message>
        <source>The automatic update feature only uses the PC's date and time</source>
        <translation>El ajuste automático usa siempre la fecha y la hora del PC.</translation>
    </message>
    <message>
        <source>You must select at least one of the reader options (Led, Buzzer or Vibration)</source>
        <translation>Hay que elegir al menos una señal del lector (LED, señal acústica o vibración)</translation>
    </message>
    <message>
        <source>Reader update successful</source>
        <translation>El lector se ha ajustado</translation>
    </message>
    <message>
        <source>Reader update failed.  Please try again.</source>
        <translation>No se ha podido ajustar el lector. Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The options were set, but the clock was not.</source>
        <translation>Se han ajustado las señales, pero no el reloj.</translation>
    </message>
    <message>
        <source>The clock was set, but the options were not.</source>
        <translation>Se ha ajustado el reloj, pero no las señales.</translation>
    </message>
    <message>
        <source>Add New Reader</source>
        <translation>Nuevo lector</translation>
    </message>
    <message>
        <source>Add New Button</source>
        <translation>Nuevo botón</translation>
    </message>
    <message>
        <source>Button ID:</source>
        <translation>Código:</translation>
    </message>
    <message>
        <source>Button ID</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>This Reader ID already exists!</source>
        <translation>¡Este lector ya existe!</translation>
    </message>
    <message>
        <source>That key is already used!</source>
        <translation>¡Este código ya está en uso!</translation>
    </message>
    <message>
        <source>&amp;Read ID</source>
        <translation>&amp;Leer el número</translation>
    </message>
    <message>
        <source>&amp;Manual Entry</source>
        <translation>Entrada &amp;manual</translation>
    </message>
    <message>
        <source>Manual Entry</source>
        <translation>Entrada manual</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Not in use yet</source>
        <translation>Todavía no está en uso</translation>
    </message>
    <message>
        <source>Reader ID Download Failed</source>
        <translation>No se ha podido leer el número del lector</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name</source>
        <translation>Ese nombre ya está en uso. Introduzca otro nombre</translation>
    </message>
    <message>
        <source>You must enter a name for this item</source>
        <translation>Introduzca un nombre</translation>
    </message>
    <message>
        <source>Enter the 6 digit button ID.  This is the last 6 digits visible on the front of the 'Dallas' Key. Valid characters are 0~9 and A~F.</source>
        <translation>Introduzca el código de 6 caracteres del botón. Son los 6 últimos que se ven en su parte frontal. Caracteres válidos: de 0 a 9 y de A a F.</translation>
    </message>
    <message>
        <source>Illegal Value</source>
        <translation>Valor no válido</translation>
    </message>
    <message>
        <source>Firmware Version is</source>
        <translation>Versión de firmware:</translation>
    </message>
    <message>
        <source>Reader Firmware Version Test</source>
        <translation>Versión de firmware</translation>
    </message>
    <message>
        <source>&amp;Reader Options</source>
        <translation>&amp;Ajustes del lector</translation>
    </message>
    <message>
        <source>Reader Firmware Version</source>
        <translation>Versión de firmware</translation>
    </message>
    <message>
        <source>The reader did not report its firmware version.</source>
        <translation>El lector no ha indicado su versión de firmware.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station and read its ID.</source>
        <translation>Coloque el lector en la base de descarga y lea su número.</translation>
    </message>
    <message>
        <source>Touch the reader in the docking station with the new button, or enter its ID by hand.</source>
        <translation>Toque con el botón nuevo el lector colocado en la base de descarga, o introduzca el código a mano.</translation>
    </message>
    <message>
        <source>Only the master may do this.</source>
        <translation>Solo el responsable puede hacerlo.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Aña&amp;dir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modificar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Tour &amp;Copy</source>
        <translation>&amp;Copiar ronda</translation>
    </message>
    <message>
        <source>Opens the selected row (double click)</source>
        <translation>Abre la fila seleccionada (doble clic)</translation>
    </message>
    <message>
        <source>Adds a new row</source>
        <translation>Añade una fila</translation>
    </message>
    <message>
        <source>Deletes the selected row (Del)</source>
        <translation>Elimina la fila seleccionada (Supr)</translation>
    </message>
    <message>
        <source>Makes a new tour as a copy of another</source>
        <translation>Crea una ronda nueva como copia de otra</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Definiciones</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Recintos</translation>
    </message>
    <message>
        <source>Event Books</source>
        <translation>Libros de incidencias</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rondas</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Lectores</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Recinto</translation>
    </message>
    <message>
        <source>S&amp;ite</source>
        <translation>&amp;Recinto</translation>
    </message>
    <message>
        <source>Event Book</source>
        <translation>Libro de incidencias</translation>
    </message>
    <message>
        <source>User Group</source>
        <translation>Grupo de usuarios</translation>
    </message>
    <message>
        <source>Tour Name</source>
        <translation>Ronda</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Hora inicial</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Botones</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modificar:</translation>
    </message>
    <message>
        <source>Edit Reader</source>
        <translation>Modificar lector</translation>
    </message>
    <message>
        <source>Edit Time</source>
        <translation>Modificar tiempo</translation>
    </message>
    <message>
        <source>&amp;Edit Time</source>
        <translation>Modificar &amp;tiempo</translation>
    </message>
    <message>
        <source>&amp;Minutes since the previous point</source>
        <translation>&amp;Minutos desde el punto anterior</translation>
    </message>
    <message>
        <source>Select Tour to copy</source>
        <translation>Elegir la ronda que desea copiar</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Descri&amp;ption :</source>
        <translation>Descri&amp;pción:</translation>
    </message>
    <message>
        <source>Tour Start Ti&amp;me:</source>
        <translation>&amp;Hora inicial:</translation>
    </message>
    <message>
        <source>To&amp;lerance (minutes):</source>
        <translation>To&amp;lerancia (minutos):</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>Rec&amp;into:</translation>
    </message>
    <message>
        <source>A&amp;vailable Locations</source>
        <translation>P&amp;untos de control disponibles</translation>
    </message>
    <message>
        <source>Available Locations</source>
        <translation>Puntos de control disponibles</translation>
    </message>
    <message>
        <source>Current T&amp;our Locations</source>
        <translation>Punt&amp;os de la ronda</translation>
    </message>
    <message>
        <source>Current Tour Locations</source>
        <translation>Puntos de la ronda</translation>
    </message>
    <message>
        <source>&amp;Add -&gt;</source>
        <translation>Aña&amp;dir -&gt;</translation>
    </message>
    <message>
        <source>&lt;- &amp;Remove</source>
        <translation>&lt;- &amp;Quitar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>Removes all points from the tour</source>
        <translation>Quita todos los puntos de la ronda</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Customize Tour Sequence</source>
        <translation>Definir la ronda</translation>
    </message>
    <message>
        <source>Location Name</source>
        <translation>Punto de control</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Punto de control</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Punto de control</translation>
    </message>
    <message>
        <source>Add New User</source>
        <translation>Nuevo usuario</translation>
    </message>
    <message>
        <source>Add New Location</source>
        <translation>Nuevo punto de control</translation>
    </message>
    <message>
        <source>Add New Event</source>
        <translation>Nueva incidencia</translation>
    </message>
    <message>
        <source>No Item is selected</source>
        <translation>No hay ningún elemento seleccionado</translation>
    </message>
    <message>
        <source>No sites yet. A site is a place with location buttons. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Todavía no hay recintos. Un recinto es un lugar con puntos de control. Pulse «Añadir» para crear uno y después «Modificar» para asignarle sus botones.</translation>
    </message>
    <message>
        <source>No event books yet. The buttons of an event book stand for incidents. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Todavía no hay libros de incidencias. Los botones de un libro representan incidencias. Pulse «Añadir» para crear uno y después «Modificar» para asignarle sus botones.</translation>
    </message>
    <message>
        <source>No tours yet. Press Add for a new one, then Edit to choose its locations.</source>
        <translation>Todavía no hay rondas. Pulse «Añadir» para crear una y después «Modificar» para elegir sus puntos de control.</translation>
    </message>
    <message>
        <source>No readers yet. Put a reader into the docking station and press Add. Without a docking station no reader can be added.</source>
        <translation>Todavía no hay lectores. Coloque un lector en la base de descarga y pulse «Añadir». Sin base de descarga no se pueden añadir lectores.</translation>
    </message>
    <message>
        <source>No buttons yet. Press Add, then touch the reader in the docking station with a button.</source>
        <translation>Todavía no hay botones. Pulse «Añadir» y toque con un botón el lector colocado en la base de descarga.</translation>
    </message>
    <message>
        <source>No buttons yet. A new button is read at the docking station, which is not connected.</source>
        <translation>Todavía no hay botones. Los botones nuevos se leen en la base de descarga, que no está conectada.</translation>
    </message>
    <message>
        <source>This site has no location buttons yet. Add them on the Setup page: select the site and press Edit.</source>
        <translation>Este recinto aún no tiene puntos de control. Añádalos en la página Configuración: seleccione el recinto y pulse «Modificar».</translation>
    </message>
    <message>
        <source>The tour has no points yet. Select a location in the other list and press Add, in the order of the tour.</source>
        <translation>La ronda aún no tiene puntos. Seleccione un punto de control en la otra lista y pulse «Añadir», en el orden de la ronda.</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text (Ctrl+F).</source>
        <translation>Muestra solo las filas que contienen este texto (Ctrl+F).</translation>
    </message>
    <message>
        <source>A touch that is early or late by no more minutes than this counts as on time.</source>
        <translation>Una lectura que se adelante o se retrase como máximo estos minutos se considera a tiempo.</translation>
    </message>
    <message>
        <source>For the first point: the minutes since the start of the tour.</source>
        <translation>En el primer punto: los minutos desde el inicio de la ronda.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost.</source>
        <translation>Se perderá «%0:s».</translation>
    </message>
    <message>
        <source>"%0:s" and its buttons will be lost.</source>
        <translation>Se perderán «%0:s» y sus botones.</translation>
    </message>
    <message>
        <source>"%0:s" and its points will be lost.</source>
        <translation>Se perderán «%0:s» y sus puntos.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost. Touches that are already downloaded are kept.</source>
        <translation>Se perderá «%0:s». Las lecturas ya descargadas se conservan.</translation>
    </message>
    <message>
        <source>The name could not be saved. Nothing was changed.</source>
        <translation>No se ha podido guardar el nombre. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>The password is empty. Anyone could log in without one.</source>
        <translation>La contraseña está vacía. Cualquiera podría iniciar sesión sin ella.</translation>
    </message>
    <message>
        <source>Do you want to save it?</source>
        <translation>¿Desea guardarla?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>¿Seguro que desea eliminar este elemento?</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name.</source>
        <translation>Ese nombre ya está en uso. Introduzca otro nombre.</translation>
    </message>
    <message>
        <source>You must enter a name for this group</source>
        <translation>Introduzca un nombre</translation>
    </message>
    <message>
        <source>A name or description cannot contain line breaks or other control characters.</source>
        <translation>Un nombre o una descripción no puede contener saltos de línea ni otros caracteres de control.</translation>
    </message>
    <message>
        <source>The tour could not be saved. Nothing was changed.</source>
        <translation>No se ha podido guardar la ronda. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Discard them?</source>
        <translation>Los cambios no se han guardado. ¿Descartarlos?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete it?</source>
        <translation>¿Seguro que desea eliminar este grupo?</translation>
    </message>
    <message>
        <source>The selected group contains sub-items</source>
        <translation>El grupo seleccionado contiene botones.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this reader?</source>
        <translation>¿Seguro que desea eliminar este lector?</translation>
    </message>
    <message>
        <source>You must add at least one location before you can define a tour</source>
        <translation>Para definir una ronda hay que añadir antes al menos un punto de control</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this tour?</source>
        <translation>¿Seguro que desea eliminar esta ronda?</translation>
    </message>
    <message>
        <source>The selected Tour contains data.</source>
        <translation>La ronda seleccionada contiene datos.</translation>
    </message>
    <message>
        <source>Cannot find any Tour Points to copy</source>
        <translation>Esta ronda no tiene puntos que copiar</translation>
    </message>
    <message>
        <source>Cannot assign two sequential tour points with the same location</source>
        <translation>Dos puntos seguidos de la ronda no pueden tener el mismo punto de control</translation>
    </message>
    <message>
        <source>The tolerance value can only range from 0 to 59 minutes</source>
        <translation>La tolerancia debe estar entre 0 y 59 minutos</translation>
    </message>
    <message>
        <source>The total tour time can only range from 0 to 1439 minutes</source>
        <translation>La duración total de la ronda debe estar entre 0 y 1439 minutos</translation>
    </message>
    <message>
        <source>Only valid numbers from 0 to 1439 can be entered</source>
        <translation>Solo se admiten números de 0 a 1439</translation>
    </message>
    <message>
        <source>The docking station is no longer connected. Enter the ID by hand, or go to the home page to connect again.</source>
        <translation>La base de descarga ya no está conectada. Introduzca el código a mano, o vaya a la página de inicio para volver a conectar.</translation>
    </message>
    <message>
        <source>&amp;Archive Events</source>
        <translation>&amp;Archivar lecturas</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Copia de seguridad</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Company &amp;Info</source>
        <translation>Datos de la &amp;empresa</translation>
    </message>
    <message>
        <source>&amp;About </source>
        <translation>&amp;Acerca de </translation>
    </message>
    <message>
        <source>Company Info</source>
        <translation>Datos de la empresa</translation>
    </message>
    <message>
        <source>These lines are printed at the head of each report. After the next start, only the first 50 characters of a line are printed.</source>
        <translation>Estas líneas se imprimen en la cabecera de cada informe. A partir del próximo inicio solo se imprimen los 50 primeros caracteres de cada línea.</translation>
    </message>
    <message>
        <source>Line &amp;1:</source>
        <translation>Línea &amp;1:</translation>
    </message>
    <message>
        <source>Line &amp;2:</source>
        <translation>Línea &amp;2:</translation>
    </message>
    <message>
        <source>Line &amp;3:</source>
        <translation>Línea &amp;3:</translation>
    </message>
    <message>
        <source>Line &amp;4:</source>
        <translation>Línea &amp;4:</translation>
    </message>
    <message>
        <source>The company info cannot be saved. This file cannot be written:</source>
        <translation>No se pueden guardar los datos de la empresa. No se puede escribir en este archivo:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>You may use, change and pass on this program, as long as the text of the License stays with it.</source>
        <translation>Puede usar, modificar y distribuir este programa, siempre que lo acompañe el texto de la licencia.</translation>
    </message>
    <message>
        <source>It comes without any warranty.</source>
        <translation>Se entrega sin ninguna garantía.</translation>
    </message>
    <message>
        <source>For a description of the program, choose Help, Contents.</source>
        <translation>Encontrará una descripción del programa en Ayuda, Contenido.</translation>
    </message>
    <message>
        <source>If something does not work, report it to the person who looks after this installation. Give the version and the build shown above, and send this file:</source>
        <translation>Si algo no funciona, avise a la persona encargada de esta instalación. Indíquele la versión y la compilación (Build) que figuran arriba y envíele este archivo:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>WK3_ENG.HLP</source>
        <translation>WK3_ENG.HLP</translation>
    </message>
    <message>
        <source>This folder does not exist. Please choose another one.</source>
        <translation>Esta carpeta no existe. Elija otra.</translation>
    </message>
    <message>
        <source>A file name can have at most 100 characters.</source>
        <translation>Un nombre de archivo puede tener 100 caracteres como máximo.</translation>
    </message>
    <message>
        <source>Select backup destination</source>
        <translation>Elegir el destino de la copia de seguridad</translation>
    </message>
    <message>
        <source>Database Files (*.mdb)</source>
        <translation>Bases de datos (*.mdb)</translation>
    </message>
    <message>
        <source>That filename is already in use. Please choose another filename</source>
        <translation>Ese nombre de archivo ya está en uso. Elija otro</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>The database is being copied and checked.</source>
        <translation>Se está copiando y comprobando la base de datos.</translation>
    </message>
    <message>
        <source>Successfully copied the database to :</source>
        <translation>La base de datos se ha copiado en:</translation>
    </message>
    <message>
        <source>The file was changed while it was read.</source>
        <translation>El archivo ha cambiado durante la lectura.</translation>
    </message>
    <message>
        <source>The copy is damaged: %0:s</source>
        <translation>La copia está dañada: %0:s</translation>
    </message>
    <message>
        <source>The copy does not have the rows of the database.</source>
        <translation>La copia no tiene las mismas filas que la base de datos.</translation>
    </message>
    <message>
        <source>The database was not copied.</source>
        <translation>La base de datos no se ha copiado.</translation>
    </message>
    <message>
        <source>The database itself is damaged.</source>
        <translation>La propia base de datos está dañada.</translation>
    </message>
    <message>
        <source>The program itself uses this file. Please choose another filename.</source>
        <translation>Este archivo lo usa el propio programa. Elija otro nombre de archivo.</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>El archivo o su carpeta no existe.</translation>
    </message>
    <message>
        <source>Removed:</source>
        <translation>Eliminado:</translation>
    </message>
    <message>
        <source>Not removed:</source>
        <translation>No eliminado:</translation>
    </message>
    <message>
        <source>A program was killed while it wrote to this file. Its journal is still beside it.</source>
        <translation>Un programa se interrumpió mientras escribía en este archivo. Su diario sigue junto a él.</translation>
    </message>
    <message>
        <source>You do not have permission to read this file.</source>
        <translation>No tiene permiso para leer este archivo.</translation>
    </message>
    <message>
        <source>It is not a database of this program, or it is damaged.</source>
        <translation>No es una base de datos de este programa, o está dañada.</translation>
    </message>
    <message>
        <source>The database is damaged:</source>
        <translation>La base de datos está dañada:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Falta:</translation>
    </message>
    <message>
        <source>Buttons whose group does not exist:</source>
        <translation>Botones cuyo grupo no existe:</translation>
    </message>
    <message>
        <source>Tour points whose tour does not exist:</source>
        <translation>Puntos de ronda cuya ronda no existe:</translation>
    </message>
    <message>
        <source>Tour points whose button does not exist:</source>
        <translation>Puntos de ronda cuyo botón no existe:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Comma Delimited Text (*.csv)</source>
        <translation>Texto separado por comas (*.csv)</translation>
    </message>
    <message>
        <source>Archive Events</source>
        <translation>Archivar lecturas</translation>
    </message>
    <message>
        <source>Choose the first and the last day. Their events are moved into a file and deleted from the database. They cannot be brought back from the file.</source>
        <translation>Elija el primer día y el último. Las lecturas de esos días se pasan a un archivo y se eliminan de la base de datos. No se pueden recuperar desde el archivo.</translation>
    </message>
    <message>
        <source>Warning: This action will permanently delete the events from the database.</source>
        <translation>Atención: las lecturas se eliminarán definitivamente de la base de datos.</translation>
    </message>
    <message>
        <source>Select location of backup database file</source>
        <translation>Elegir la copia de seguridad que desea restaurar</translation>
    </message>
    <message>
        <source>That filename cannot be found. Please choose another filename</source>
        <translation>No se encuentra ese archivo. Elija otro</translation>
    </message>
    <message>
        <source>This file is the database itself. Please choose a backup of it.</source>
        <translation>Este archivo es la propia base de datos. Elija una copia de seguridad.</translation>
    </message>
    <message>
        <source>Warning: This action will delete the existing database. You will loose ALL data in the existing database.</source>
        <translation>Atención: la base de datos actual se eliminará. Se perderán TODOS sus datos.</translation>
    </message>
    <message>
        <source>Are you sure you want to continue?</source>
        <translation>¿Seguro que desea continuar?</translation>
    </message>
    <message>
        <source>There are no stored events within the dates you entered.</source>
        <translation>No hay lecturas guardadas en ese período.</translation>
    </message>
    <message>
        <source>File Save Error: Archive Not Saved.  Please Try again.</source>
        <translation>Error al guardar: las lecturas no se han archivado. Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Events Archived Successfully</source>
        <translation>Las lecturas se han archivado</translation>
    </message>
    <message>
        <source>Number of Events =</source>
        <translation>Número de lecturas:</translation>
    </message>
    <message>
        <source>FileName = </source>
        <translation>Nombre de archivo: </translation>
    </message>
    <message>
        <source>The events are written to the file and then deleted from the database.</source>
        <translation>Las lecturas se copian en el archivo y después se eliminan de la base de datos.</translation>
    </message>
    <message>
        <source>%0:s events were written, but the database deleted %1:s. Nothing was archived.</source>
        <translation>Se han escrito %0:s lecturas, pero de la base de datos se han eliminado %1:s. No se ha archivado nada.</translation>
    </message>
    <message>
        <source>The events were written to %0:s, but they are still in the database: %1:s</source>
        <translation>Las lecturas se han copiado en %0:s, pero siguen en la base de datos: %1:s</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restauración</translation>
    </message>
    <message>
        <source>The backup is being copied and checked.</source>
        <translation>Se está copiando y comprobando la copia de seguridad.</translation>
    </message>
    <message>
        <source>The database is in use. Waiting until it is free.</source>
        <translation>La base de datos está en uso. Esperando a que quede libre.</translation>
    </message>
    <message>
        <source>Successfully copied the database</source>
        <translation>La base de datos se ha restaurado</translation>
    </message>
    <message>
        <source>Warning : The program will now close.</source>
        <translation>Atención: el programa se va a cerrar.</translation>
    </message>
    <message>
        <source>Please restart the program to continue.</source>
        <translation>Vuelva a iniciar el programa para continuar.</translation>
    </message>
    <message>
        <source>The database was not restored. It is as it was before.</source>
        <translation>La base de datos no se ha restaurado. Sigue como estaba.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program.</source>
        <translation>El archivo elegido no es una base de datos de este programa.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program, its password is different, or it is damaged.</source>
        <translation>El archivo elegido no es una base de datos de este programa, tiene otra contraseña o está dañado.</translation>
    </message>
    <message>
        <source>The chosen file is not a complete database of this program. It lacks %0:s.</source>
        <translation>El archivo elegido no es una base de datos completa de este programa. Falta: %0:s.</translation>
    </message>
    <message>
        <source>The chosen file is damaged: %0:s</source>
        <translation>El archivo elegido está dañado: %0:s</translation>
    </message>
    <message>
        <source>Another program has used the database meanwhile. Please try again.</source>
        <translation>Entretanto, otro programa ha usado la base de datos. Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The database was restored, but the disk reported an error. Please check it.</source>
        <translation>La base de datos se ha restaurado, pero el disco ha comunicado un error. Compruébelo.</translation>
    </message>
</context>
</TS>
