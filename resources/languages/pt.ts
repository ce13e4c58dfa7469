<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>Wardlock</name>
    <message>
        <source>The database is damaged. Some of its events can no longer be read.</source>
        <translation>A base de dados está danificada. Parte das suas leituras já não pode ser lida.</translation>
    </message>
    <message>
        <source>Please restore a backup. Until then, no reader is erased.</source>
        <translation>Restaure uma cópia de segurança. Até lá, nenhum leitor será apagado.</translation>
    </message>
    <message>
        <source>Another program is using it.</source>
        <translation>Outro programa está a usar a base de dados.</translation>
    </message>
    <message>
        <source>It is in use by %0:s (process %1:s).</source>
        <translation>A base de dados está a ser usada por %0:s (processo %1:s).</translation>
    </message>
    <message>
        <source>It is in use on computer %2:s by %0:s (process %1:s).</source>
        <translation>A base de dados está a ser usada no computador %2:s por %0:s (processo %1:s).</translation>
    </message>
    <message>
        <source>The touches are stored, but the disk reported an error. The reader was not erased.</source>
        <translation>As leituras foram guardadas, mas o disco comunicou um erro. O leitor não foi apagado.</translation>
    </message>
    <message>
        <source>The disk or the network reported an error. Please check it and try again.</source>
        <translation>O disco ou a rede comunicou um erro. Verifique e tente novamente.</translation>
    </message>
    <message>
        <source>The database is damaged. The reader was not erased.</source>
        <translation>A base de dados está danificada. O leitor não foi apagado.</translation>
    </message>
    <message>
        <source>A name or description can have at most 100 characters.</source>
        <translation>Um nome ou uma descrição pode ter no máximo 100 caracteres.</translation>
    </message>
    <message>
        <source>A password cannot contain line breaks or other control characters.</source>
        <translation>Uma palavra-passe não pode conter quebras de linha nem outros caracteres de controlo.</translation>
    </message>
    <message>
        <source>The report could not be created. See error.log for the reason.</source>
        <translation>Não foi possível criar o relatório. O motivo consta do ficheiro error.log.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>O ficheiro não existe.</translation>
    </message>
    <message>
        <source>The folder %0:s does not exist. Please create it, or choose another folder in WARDLOCK_HOME.</source>
        <translation>A pasta %0:s não existe. Crie-a ou indique outra em WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>You may not write to the folder %0:s. Please ask for permission, or choose another folder in WARDLOCK_HOME.</source>
        <translation>Não tem permissão para escrever na pasta %0:s. Peça-a ou indique outra pasta em WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>There is no database yet. Please start the station once to create it.</source>
        <translation>Ainda não existe nenhuma base de dados. Inicie uma vez o programa Wardlock, que cria uma.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>O disco está cheio.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this file or its folder.</source>
        <translation>Não tem permissão para escrever neste ficheiro ou na sua pasta.</translation>
    </message>
    <message>
        <source>Its password is different, or it is damaged. If it is damaged, please restore a backup.</source>
        <translation>A palavra-passe é diferente, ou a base de dados está danificada. Se estiver danificada, restaure uma cópia de segurança.</translation>
    </message>
    <message>
        <source>It is damaged. Please restore a backup.</source>
        <translation>A base de dados está danificada. Restaure uma cópia de segurança.</translation>
    </message>
    <message>
        <source>A journal next to the database did not belong to it. The database was opened without this journal.</source>
        <translation>Junto da base de dados havia um diário que não lhe pertencia. A base de dados foi aberta sem este diário.</translation>
    </message>
    <message>
        <source>It was renamed to:</source>
        <translation>Passou a chamar-se:</translation>
    </message>
    <message>
        <source>The User Name / Password are incorrect. Please try again.</source>
        <translation>O nome de utilizador ou a palavra-passe está incorreta. Tente novamente.</translation>
    </message>
    <message>
        <source>Could not open the com port.</source>
        <translation>Não foi possível abrir a porta COM.</translation>
    </message>
    <message>
        <source>Check settings and try again.</source>
        <translation>Verifique as definições e tente novamente.</translation>
    </message>
    <message>
        <source>The master chooses the port under Tools, Com Options.</source>
        <translation>O responsável escolhe a porta em Ferramentas, Porta COM.</translation>
    </message>
    <message>
        <source>Is the docking station plugged in, and is this its device?</source>
        <translation>A base de descarga está ligada e este é o seu dispositivo?</translation>
    </message>
    <message>
        <source>Could not connect to the docking station.</source>
        <translation>Não foi possível ligar à base de descarga.</translation>
    </message>
    <message>
        <source>Check hardware and settings and try again.</source>
        <translation>Verifique o equipamento e as definições e tente novamente.</translation>
    </message>
    <message>
        <source>Working in Offline Mode</source>
        <translation>A trabalhar sem base de descarga</translation>
    </message>
    <message>
        <source>Docking Station : OK</source>
        <translation>Base de descarga: OK</translation>
    </message>
    <message>
        <source>Docking Station : Not Detected</source>
        <translation>Base de descarga: não detetada</translation>
    </message>
    <message>
        <source>%0:s is gone. Plug it in again.</source>
        <translation>%0:s já não está ligado. Ligue-o novamente.</translation>
    </message>
    <message>
        <source>Last download</source>
        <translation>Última descarga</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ainda nenhuma</translation>
    </message>
    <message>
        <source>Tours of the last 24 hours</source>
        <translation>Rondas das últimas 24 horas</translation>
    </message>
    <message>
        <source>Click a tour, or press Enter, to open its report.</source>
        <translation>Clique numa ronda, ou prima Enter, para abrir o seu relatório.</translation>
    </message>
    <message>
        <source>No tour was due.</source>
        <translation>Nenhuma ronda estava prevista.</translation>
    </message>
    <message>
        <source>Readers and tours are not set up yet. A master does this on the Setup page.</source>
        <translation>Os leitores e as rondas ainda não estão definidos. O responsável faz isso na página Configuração.</translation>
    </message>
    <message>
        <source>not downloaded or not walked</source>
        <translation>sem descarga/não feita</translation>
    </message>
    <message>
        <source>On time</source>
        <translation>No horário</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Com avanço</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Com atraso</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Sem leitura</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Primeiros passos</translation>
    </message>
    <message>
        <source>Define a site</source>
        <translation>Definir um local</translation>
    </message>
    <message>
        <source>Add the buttons of the site</source>
        <translation>Adicionar os botões do local</translation>
    </message>
    <message>
        <source>Add a reader</source>
        <translation>Adicionar um leitor</translation>
    </message>
    <message>
        <source>Plan a tour</source>
        <translation>Planear uma ronda</translation>
    </message>
    <message>
        <source>done</source>
        <translation>feito</translation>
    </message>
    <message>
        <source>The touches could not be stored. The reader was not erased.</source>
        <translation>Não foi possível guardar as leituras. O leitor não foi apagado.</translation>
    </message>
    <message>
        <source>Touches stored: </source>
        <translation>Leituras guardadas: </translation>
    </message>
    <message>
        <source>The reader was taken out of the station. It was not erased.</source>
        <translation>O leitor foi retirado da base de descarga. Não foi apagado.</translation>
    </message>
    <message>
        <source>Another reader is in the station. It was not erased.</source>
        <translation>Na base de descarga está outro leitor. Não foi apagado.</translation>
    </message>
    <message>
        <source>The reader has been used since it was read. It was not erased.</source>
        <translation>O leitor foi usado depois da descarga. Não foi apagado.</translation>
    </message>
    <message>
        <source>The reader's memory continues after its end mark. The touches that were read are stored, but the reader was not erased.</source>
        <translation>A memória do leitor continua depois da marca de fim. As leituras recebidas foram guardadas, mas o leitor não foi apagado.</translation>
    </message>
    <message>
        <source>The reader holds a different number of records than it reports. The touches that were read are stored, but the reader was not erased.</source>
        <translation>O leitor não contém o número de registos que indica. As leituras recebidas foram guardadas, mas o leitor não foi apagado.</translation>
    </message>
    <message>
        <source>The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It was not set.</source>
        <translation>O relógio do leitor só aceita datas de 1 de janeiro de 2000 a 6 de junho de 2179. Não foi acertado.</translation>
    </message>
    <message>
        <source>Reader Memory NOT erased!</source>
        <translation>A memória do leitor NÃO foi apagada!</translation>
    </message>
    <message>
        <source>Reader Memory erased</source>
        <translation>Memória do leitor apagada</translation>
    </message>
    <message>
        <source>Reader ID:</source>
        <translation>N.º do leitor:</translation>
    </message>
    <message>
        <source>KV-88 Wardlock Reports</source>
        <translation>Relatórios KV-88 Wardlock</translation>
    </message>
    <message>
        <source>%0:s - Version %1:s</source>
        <translation>%0:s - Versão %1:s</translation>
    </message>
    <message>
        <source>Download Failed</source>
        <translation>A descarga falhou</translation>
    </message>
    <message>
        <source>Remove the cause, and then download the reader again.</source>
        <translation>Elimine a causa e descarregue novamente o leitor.</translation>
    </message>
    <message>
        <source>All touches are still in the reader.</source>
        <translation>Todas as leituras continuam no leitor.</translation>
    </message>
    <message>
        <source>Download Successful</source>
        <translation>Descarga concluída com êxito</translation>
    </message>
    <message>
        <source>Reports of the tours in this download</source>
        <translation>Relatórios das rondas desta descarga</translation>
    </message>
    <message>
        <source>More on the Reports page: %0:s</source>
        <translation>Mais na página Relatórios: %0:s</translation>
    </message>
    <message>
        <source>Data Readings = </source>
        <translation>Leituras: </translation>
    </message>
    <message>
        <source>The Reader was empty</source>
        <translation>O leitor estava vazio</translation>
    </message>
    <message>
        <source>Reader Clock update failed.  Please try again.</source>
        <translation>Não foi possível acertar o relógio do leitor. Tente novamente.</translation>
    </message>
    <message>
        <source>The download itself is complete. The clock can be set with Reader Options in the Tools menu.</source>
        <translation>A descarga em si está concluída. O relógio pode ser acertado em Ferramentas, Definições do leitor.</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the reader? </source>
        <translation>Deseja mesmo apagar a memória do leitor? </translation>
    </message>
    <message>
        <source>The reader that was downloaded last:</source>
        <translation>Último leitor descarregado:</translation>
    </message>
    <message>
        <source>Touches that have not been downloaded yet will be lost.</source>
        <translation>As leituras ainda não descarregadas vão perder-se.</translation>
    </message>
    <message>
        <source>Reader Erase Failed.  Try again?</source>
        <translation>Não foi possível apagar o leitor. Tentar novamente?</translation>
    </message>
    <message>
        <source>As long as the reader keeps its touches, each further download stores them again.</source>
        <translation>Enquanto o leitor mantiver as suas leituras, cada nova descarga volta a guardá-las.</translation>
    </message>
    <message>
        <source>Reader Erased</source>
        <translation>Leitor apagado</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Download Error</source>
        <translation>Erro na descarga</translation>
    </message>
    <message>
        <source>The names of the buttons could not be read from the database. See error.log for the reason.</source>
        <translation>Não foi possível ler os nomes dos botões na base de dados. O motivo consta do ficheiro error.log.</translation>
    </message>
    <message>
        <source>What the reader sent was not complete or not valid. Please try again.</source>
        <translation>Os dados enviados pelo leitor estão incompletos ou são inválidos. Tente novamente.</translation>
    </message>
    <message>
        <source>The connection to the docking station was lost. Check its cable and try again.</source>
        <translation>A ligação à base de descarga foi interrompida. Verifique o cabo e tente novamente.</translation>
    </message>
    <message>
        <source>The docking station could not read the reader. Take it out, put it in again, and try once more.</source>
        <translation>A base de descarga não conseguiu ler o leitor. Retire-o, volte a colocá-lo e tente novamente.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station so that it sits firmly.</source>
        <translation>Encaixe bem o leitor na base de descarga.</translation>
    </message>
    <message>
        <source>The reader stopped answering. Leave it in the docking station until the download is complete, and try again.</source>
        <translation>O leitor deixou de responder. Deixe-o na base de descarga até a descarga terminar e tente novamente.</translation>
    </message>
    <message>
        <source>Downloading data from reader</source>
        <translation>A descarregar os dados do leitor</translation>
    </message>
    <message>
        <source>Reader not detected. Check reader and try again.</source>
        <translation>Nenhum leitor detetado. Verifique o leitor e tente novamente.</translation>
    </message>
    <message>
        <source>Download Completed</source>
        <translation>Descarga terminada</translation>
    </message>
    <message>
        <source>Processing Data</source>
        <translation>A processar os dados</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>Pronto...</translation>
    </message>
    <message>
        <source>Opening COM port...</source>
        <translation>A abrir a porta COM...</translation>
    </message>
    <message>
        <source>Could Not Open Com </source>
        <translation>Não é possível abrir COM </translation>
    </message>
    <message>
        <source>Please try another COM port or check that the COM port is not in use by another program.</source>
        <translation>Escolha outra porta COM ou verifique se outro programa está a usar esta porta.</translation>
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
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Looks for the docking station again</source>
        <translation>Procura de novo a base de descarga</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Checking Docking Station...</source>
        <translation>A procurar a base de descarga...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>nenhum dispositivo</translation>
    </message>
    <message>
        <source>&amp;Open Report...</source>
        <translation>Abrir &amp;relatório...</translation>
    </message>
    <message>
        <source>Open the dialog of the selected report</source>
        <translation>Abre a janela do relatório selecionado</translation>
    </message>
    <message>
        <source>Report Name</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>Descri&amp;ption</source>
        <translation>Desc&amp;rição</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Tour / Exception Report</source>
        <translation>Relatório de ronda / anomalias</translation>
    </message>
    <message>
        <source>Patrol Schedule</source>
        <translation>Plano de ronda</translation>
    </message>
    <message>
        <source>Lists the times and places for a tour</source>
        <translation>Horas e pontos de controlo de uma ronda</translation>
    </message>
    <message>
        <source>Patrol Schedule Report</source>
        <translation>Plano de ronda</translation>
    </message>
    <message>
        <source>Select the tour from which the tour schedule will be created.</source>
        <translation>Escolha a ronda cujo plano deseja obter.</translation>
    </message>
    <message>
        <source>Tour Description:</source>
        <translation>Descrição:</translation>
    </message>
    <message>
        <source>Tour Tolerance:</source>
        <translation>Tolerância:</translation>
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
        <translation>Lista de equipamento</translation>
    </message>
    <message>
        <source>List all the defined buttons</source>
        <translation>Todos os botões definidos</translation>
    </message>
    <message>
        <source>Select the options for the hardware report</source>
        <translation>Escolha o conteúdo da lista de equipamento</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ocorrência</translation>
    </message>
    <message>
        <source>E&amp;vent</source>
        <translation>&amp;Ocorrência</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Pontos de controlo</translation>
    </message>
    <message>
        <source>Incidents</source>
        <translation>Ocorrências</translation>
    </message>
    <message>
        <source>Hardware Code</source>
        <translation>Código de hardware</translation>
    </message>
    <message>
        <source>You must add at least one reader before this report can be used</source>
        <translation>Para este relatório é preciso adicionar primeiro pelo menos um leitor</translation>
    </message>
    <message>
        <source>A master adds tours on the Setup page.</source>
        <translation>O responsável adiciona as rondas na página Configuração.</translation>
    </message>
    <message>
        <source>A master adds readers on the Setup page.</source>
        <translation>O responsável adiciona os leitores na página Configuração.</translation>
    </message>
    <message>
        <source>You must add at least one tour before this report can be used</source>
        <translation>Para este relatório é preciso adicionar primeiro pelo menos uma ronda</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>You could not be logged in.  Closing the program now.</source>
        <translation>Não foi possível iniciar sessão. O programa vai ser fechado.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Relatórios</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
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
        <translation>Botão</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Não é possível mostrar a ajuda. Este programa não tem nenhuma ajuda associada.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Wardlock authors. Free software under the MIT License.</source>
        <translation>Copyright © 2026 os autores de Wardlock. Software livre com licença MIT.</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Responsável</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilizador</translation>
    </message>
    <message>
        <source>The passwords do not match, please re-enter</source>
        <translation>As palavras-passe não coincidem. Introduza-as novamente</translation>
    </message>
    <message>
        <source>Opening Database...</source>
        <translation>A abrir a base de dados...</translation>
    </message>
    <message>
        <source>Compacting Database...</source>
        <translation>A compactar a base de dados...</translation>
    </message>
    <message>
        <source>Loading Application...</source>
        <translation>A carregar o programa...</translation>
    </message>
    <message>
        <source>Initializing Online Help...</source>
        <translation>A preparar a ajuda...</translation>
    </message>
    <message>
        <source>Error in creating new Tour</source>
        <translation>Erro ao criar a ronda</translation>
    </message>
    <message>
        <source>The tour has no points. A master adds them on the Setup page.</source>
        <translation>A ronda não tem pontos. O responsável adiciona-os na página Configuração.</translation>
    </message>
    <message>
        <source>This tour does not exist any more, or it cannot be read.</source>
        <translation>Esta ronda já não existe ou não pode ser lida.</translation>
    </message>
    <message>
        <source>The settings cannot be saved. Changes you make now are lost when the program ends.</source>
        <translation>Não é possível guardar as definições. As alterações vão perder-se ao fechar o programa.</translation>
    </message>
    <message>
        <source>EARLY</source>
        <translation>COM AVANÇO</translation>
    </message>
    <message>
        <source>ON TIME</source>
        <translation>NO HORÁRIO</translation>
    </message>
    <message>
        <source>LATE</source>
        <translation>COM ATRASO</translation>
    </message>
    <message>
        <source>OUT OF SEQUENCE</source>
        <translation>FORA DE ORDEM</translation>
    </message>
    <message>
        <source>%0:s points: %1:s</source>
        <translation>%0:s pontos: %1:s</translation>
    </message>
    <message>
        <source>1 point: %0:s</source>
        <translation>1 ponto: %0:s</translation>
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
        <translation>%0:s no horário</translation>
    </message>
    <message>
        <source>%0:s early</source>
        <translation>%0:s com avanço</translation>
    </message>
    <message>
        <source>%0:s late</source>
        <translation>%0:s com atraso</translation>
    </message>
    <message>
        <source>%0:s missing</source>
        <translation>%0:s sem leitura</translation>
    </message>
    <message>
        <source>NOT ON TOUR</source>
        <translation>FORA DA RONDA</translation>
    </message>
    <message>
        <source>NO EXCEPTIONS</source>
        <translation>SEM ANOMALIAS</translation>
    </message>
    <message>
        <source>EXCEPTION</source>
        <translation>ANOMALIA</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>SEM LEITURA</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>OCORRÊNCIA</translation>
    </message>
    <message>
        <source>Generating Report</source>
        <translation>Criação do relatório</translation>
    </message>
    <message>
        <source>Please wait, generating report (this may take a few minutes)</source>
        <translation>Aguarde, o relatório está a ser criado (pode demorar alguns minutos)</translation>
    </message>
    <message>
        <source>Date Range:   From %0:s to %1:s</source>
        <translation>Período:   de %0:s a %1:s</translation>
    </message>
    <message>
        <source>No Data on the report</source>
        <translation>Não há dados para o relatório</translation>
    </message>
    <message>
        <source>See error.log for the reason.</source>
        <translation>O motivo consta do ficheiro error.log.</translation>
    </message>
    <message>
        <source>Please check these choices, and whether the reader has been downloaded.</source>
        <translation>Verifique estes critérios e se o leitor foi descarregado.</translation>
    </message>
    <message>
        <source>There is no data to show for these parameters</source>
        <translation>Não há dados que correspondam a estes critérios</translation>
    </message>
    <message>
        <source>The start date cannot be later than the end date</source>
        <translation>A data inicial não pode ser posterior à data final</translation>
    </message>
    <message>
        <source>Reader Download Report</source>
        <translation>Relatório de descargas</translation>
    </message>
    <message>
        <source>Lists details of each download to the PC for a reader</source>
        <translation>Detalhe de cada descarga de um leitor</translation>
    </message>
    <message>
        <source>Download Time:</source>
        <translation>Descarregado em:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Date / Time</source>
        <translation>Data / Hora</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Database Report</source>
        <translation>Relatório da base de dados</translation>
    </message>
    <message>
        <source>Raw data from database</source>
        <translation>Dados em bruto da base de dados</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Print Date:</source>
        <translation>Impresso em:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
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
        <translation>Tolerância (min):</translation>
    </message>
    <message>
        <source>Site/Location</source>
        <translation>Local / Ponto de controlo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>End Of Report</source>
        <translation>Fim do relatório</translation>
    </message>
    <message>
        <source>Show Events:</source>
        <translation>Com ocorrências:</translation>
    </message>
    <message>
        <source>Tour Report</source>
        <translation>Relatório de ronda</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>Relatório de anomalias</translation>
    </message>
    <message>
        <source>Reader ID</source>
        <translation>N.º do leitor</translation>
    </message>
    <message>
        <source>Transfer progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Transfer progress in percent</source>
        <translation>Progresso em percentagem</translation>
    </message>
    <message>
        <source>Do not remove the reader until download is complete.</source>
        <translation>Não retirar o leitor antes de a descarga terminar.</translation>
    </message>
    <message>
        <source>Docking Station</source>
        <translation>Base de descarga</translation>
    </message>
    <message>
        <source>Connection progress</source>
        <translation>Estado da ligação</translation>
    </message>
    <message>
        <source>&amp;Download Data</source>
        <translation>&amp;Descarregar leitor</translation>
    </message>
    <message>
        <source>Stores the touches of the docked reader, then erases the reader</source>
        <translation>Guarda as leituras do leitor colocado e depois apaga o leitor</translation>
    </message>
    <message>
        <source>Erases the docked reader without storing its touches</source>
        <translation>Apaga o leitor colocado sem guardar as suas leituras</translation>
    </message>
    <message>
        <source>&amp;Erase Reader</source>
        <translation>Apa&amp;gar leitor</translation>
    </message>
    <message>
        <source>Download result</source>
        <translation>Resultado da descarga</translation>
    </message>
    <message>
        <source>Touches read</source>
        <translation>Leituras recebidas</translation>
    </message>
    <message>
        <source>Communications  Setup</source>
        <translation>Porta de comunicação</translation>
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
        <translation>O dispositivo deste número de porta</translation>
    </message>
    <message>
        <source>Leave the device set to Automatic unless the docking station uses another one.</source>
        <translation>Deixe o dispositivo em Automático, a não ser que a base de descarga use outro.</translation>
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
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>Texto da ajuda</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Procurar:</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Conteúdo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nada encontrado.</translation>
    </message>
    <message>
        <source>Help on This &amp;Page</source>
        <translation>Ajuda desta &amp;página</translation>
    </message>
    <message>
        <source>The help is in English.</source>
        <translation>A ajuda está em inglês.</translation>
    </message>
    <message>
        <source>It is not a help file of this program.</source>
        <translation>Não é um ficheiro de ajuda deste programa.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
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
        <translation>&amp;Responsável</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Utilizador</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Palavra-passe:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Título da página</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Ficheiro</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>Ferra&amp;mentas</translation>
    </message>
    <message>
        <source>User &amp;Maintenance</source>
        <translation>&amp;Palavras-passe</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ajuda</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Com &amp;Options...</source>
        <translation>Porta &amp;COM...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Conteúdo</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Ícone do programa</translation>
    </message>
    <message>
        <source>User Maintenance</source>
        <translation>Palavras-passe</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>&amp;Repetir palavra-passe:</translation>
    </message>
    <message>
        <source>Report Parameters</source>
        <translation>Critérios do relatório</translation>
    </message>
    <message>
        <source>Select the tour and start date to create the report</source>
        <translation>Escolha a ronda e a data do relatório</translation>
    </message>
    <message>
        <source>Choose the reader</source>
        <translation>Escolha o leitor</translation>
    </message>
    <message>
        <source>Select the date range and reader ID to create the Reader Download Report</source>
        <translation>Escolha o período e o leitor do relatório</translation>
    </message>
    <message>
        <source>Reset Dates</source>
        <translation>Data de hoje</translation>
    </message>
    <message>
        <source>Sets the range back to today</source>
        <translation>Repõe o período em hoje</translation>
    </message>
    <message>
        <source>Select the date range to create the report</source>
        <translation>Escolha o período do relatório</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>Períodos:</translation>
    </message>
    <message>
        <source>Only this event; the places that were touched before it are shown with it</source>
        <translation>Só esta ocorrência, com os pontos de controlo visitados antes dela</translation>
    </message>
    <message>
        <source>Only touches made while this site was the last one touched</source>
        <translation>Só as leituras feitas enquanto este local era o último visitado</translation>
    </message>
    <message>
        <source>Sets the range and makes the report at once</source>
        <translation>Define o período e cria logo o relatório</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Últimos 7 dias</translation>
    </message>
    <message>
        <source>Last30 Days</source>
        <translation>Últimos 30 dias</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Critérios</translation>
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
        <translation>&amp;Data da ronda</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Leitor</translation>
    </message>
    <message>
        <source>&amp;Reader</source>
        <translation>&amp;Leitor</translation>
    </message>
    <message>
        <source>Report Options</source>
        <translation>Conteúdo do relatório</translation>
    </message>
    <message>
        <source>Show &amp;All Tour Points</source>
        <translation>&amp;Todos os pontos da ronda</translation>
    </message>
    <message>
        <source>Only Show &amp;Exceptions</source>
        <translation>&amp;Só anomalias</translation>
    </message>
    <message>
        <source>&amp;Include Events</source>
        <translation>Com &amp;ocorrências</translation>
    </message>
    <message>
        <source>Also shows the incidents recorded at each point</source>
        <translation>Mostra também as ocorrências registadas em cada ponto</translation>
    </message>
    <message>
        <source>&amp;Start Date</source>
        <translation>&amp;Data inicial</translation>
    </message>
    <message>
        <source>Start &amp;Time</source>
        <translation>&amp;Hora inicial</translation>
    </message>
    <message>
        <source>&amp;End Date</source>
        <translation>Data &amp;final</translation>
    </message>
    <message>
        <source>En&amp;d Date</source>
        <translation>Data &amp;final</translation>
    </message>
    <message>
        <source>End Ti&amp;me</source>
        <translation>Hora fi&amp;nal</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>No entry contains this.</source>
        <translation>Nenhum elemento contém este texto.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tudo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Incident Report</source>
        <translation>Relatório de ocorrências</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers</source>
        <translation>Ocorrências por período e leitor</translation>
    </message>
    <message>
        <source>Incident Report with Sites</source>
        <translation>Relatório de ocorrências com locais</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers with sites</source>
        <translation>Ocorrências por período e leitor, com os locais</translation>
    </message>
    <message>
        <source>&amp;Readers:</source>
        <translation>&amp;Leitores:</translation>
    </message>
    <message>
        <source>&amp;Events:</source>
        <translation>&amp;Ocorrências:</translation>
    </message>
    <message>
        <source>Select Incident/s</source>
        <translation>Escolher ocorrências</translation>
    </message>
    <message>
        <source>%0:s [%1:s] -- %2:s</source>
        <translation>%0:s [%1:s] -- %2:s</translation>
    </message>
    <message>
        <source>There must be at least one reader selected to create a report</source>
        <translation>Para criar o relatório é preciso escolher pelo menos um leitor</translation>
    </message>
    <message>
        <source>An event was deleted meanwhile. Please open the dialog of the report again.</source>
        <translation>Entretanto, uma ocorrência foi eliminada. Abra novamente a janela do relatório.</translation>
    </message>
    <message>
        <source>No reader is defined.</source>
        <translation>Nenhum leitor definido.</translation>
    </message>
    <message>
        <source>No event is defined. A master adds event books on the Setup page.</source>
        <translation>Nenhuma ocorrência definida. O responsável adiciona os livros de ocorrências na página Configuração.</translation>
    </message>
    <message>
        <source>There must be at least one event selected to create a report</source>
        <translation>Para criar o relatório é preciso escolher pelo menos uma ocorrência</translation>
    </message>
    <message>
        <source>No incidents of this type were recorded</source>
        <translation>Nenhuma ocorrência deste tipo foi registada</translation>
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
        <translation>Nenhuma ocorrência tem o código %0:s.</translation>
    </message>
    <message>
        <source>There is no site named %0:s.</source>
        <translation>Nenhum local tem o nome %0:s.</translation>
    </message>
    <message>
        <source>Select the date and other filters to create the Incident report</source>
        <translation>Escolha o período e os outros critérios do relatório</translation>
    </message>
    <message>
        <source>Incidents And Locations Report</source>
        <translation>Ocorrências e pontos de controlo</translation>
    </message>
    <message>
        <source>Reader Name</source>
        <translation>Leitor</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Ocorrência</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>&amp;Pré-visualizar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Exportar para PDF</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página seguinte</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Número da página</translation>
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
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Largura da página</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Página inteira</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>The report could not be exported.</source>
        <translation>Não foi possível exportar o relatório.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Não foi possível imprimir o relatório.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Definições do leitor</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Sa&amp;me as PC Clock:</source>
        <translation>Hora do &amp;PC:</translation>
    </message>
    <message>
        <source>C&amp;ustom Time</source>
        <translation>Outra &amp;hora</translation>
    </message>
    <message>
        <source>Custom Time</source>
        <translation>Outra hora</translation>
    </message>
    <message>
        <source>What the reader does at each touch</source>
        <translation>O que o leitor faz em cada leitura</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Data:</translation>
    </message>
    <message>
        <source>PC time</source>
        <translation>Hora do PC</translation>
    </message>
    <message>
        <source>&amp;Automatically Set Time and Date to PC's settings when downloading Data</source>
        <translation>&amp;Acertar automaticamente o relógio pelo do PC em cada descarga</translation>
    </message>
    <message>
        <source>Reader Options</source>
        <translation>Sinais do leitor</translation>
    </message>
    <message>
        <source>&amp;Buzzer Enabled</source>
        <translation>&amp;Sinal sonoro</translation>
    </message>
    <message>
        <source>&amp;LED Enabled</source>
        <translation>Indicador &amp;LED</translation>
    </message>
    <message>
        <source>&amp;Vibration Enabled</source>
        <translation>&amp;Vibração</translation>
    </message>
    <message>
        <source>Buzzer Duration</source>
        <translation>Duração do sinal sonoro</translation>
    </message>
    <message>
        <source>S&amp;hort</source>
        <translation>Cu&amp;rta</translation>
    </message>
    <message>
        <source>L&amp;ong</source>
        <translation>Lon&amp;ga</translation>
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
        <translation>outra data escolhida aqui só vale para esta vez.</translation>
    </message>
    <message>
        <source>The automatic update feature only uses the PC's date and time</source>
        <translation>O acerto automático segue sempre a data e a hora do PC.</translation>
    </message>
    <message>
        <source>You must select at least one of the reader options (Led, Buzzer or Vibration)</source>
        <translation>É preciso escolher pelo menos um sinal do leitor (LED, sinal sonoro ou vibração)</translation>
    </message>
    <message>
        <source>Reader update successful</source>
        <translation>As definições do leitor foram enviadas</translation>
    </message>
    <message>
        <source>Reader update failed.  Please try again.</source>
        <translation>Não foi possível enviar as definições ao leitor. Tente novamente.</translation>
    </message>
    <message>
        <source>The options were set, but the clock was not.</source>
        <translation>Os sinais foram definidos, mas o relógio não foi acertado.</translation>
    </message>
    <message>
        <source>The clock was set, but the options were not.</source>
        <translation>O relógio foi acertado, mas os sinais não foram definidos.</translation>
    </message>
    <message>
        <source>Add New Reader</source>
        <translation>Novo leitor</translation>
    </message>
    <message>
        <source>Add New Button</source>
        <translation>Novo botão</translation>
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
        <translation>Este leitor já existe!</translation>
    </message>
    <message>
        <source>That key is already used!</source>
        <translation>Este código já está a ser usado!</translation>
    </message>
    <message>
        <source>&amp;Read ID</source>
        <translation>&amp;Ler o número</translation>
    </message>
    <message>
        <source>&amp;Manual Entry</source>
        <translation>Introdução &amp;manual</translation>
    </message>
    <message>
        <source>Manual Entry</source>
        <translation>Introdução manual</translation>
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
        <translation>Ainda não usado</translation>
    </message>
    <message>
        <source>Reader ID Download Failed</source>
        <translation>Não foi possível ler o número do leitor</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name</source>
        <translation>Esse nome já está a ser usado. Introduza outro nome</translation>
    </message>
    <message>
        <source>You must enter a name for this item</source>
        <translation>Introduza um nome</translation>
    </message>
    <message>
        <source>Enter the 6 digit button ID.  This is the last 6 digits visible on the front of the 'Dallas' Key. Valid characters are 0~9 and A~F.</source>
        <translation>Introduza o código de 6 caracteres do botão. São os últimos 6 visíveis na parte da frente. Caracteres válidos: de 0 a 9 e de A a F.</translation>
    </message>
    <message>
        <source>Illegal Value</source>
        <translation>Valor inválido</translation>
    </message>
    <message>
        <source>Firmware Version is</source>
        <translation>Versão do firmware:</translation>
    </message>
    <message>
        <source>Reader Firmware Version Test</source>
        <translation>Versão do firmware</translation>
    </message>
    <message>
        <source>&amp;Reader Options</source>
        <translation>&amp;Definições do leitor</translation>
    </message>
    <message>
        <source>Reader Firmware Version</source>
        <translation>Versão do firmware</translation>
    </message>
    <message>
        <source>The reader did not report its firmware version.</source>
        <translation>O leitor não indicou a versão do firmware.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station and read its ID.</source>
        <translation>Coloque o leitor na base de descarga e leia o seu número.</translation>
    </message>
    <message>
        <source>Touch the reader in the docking station with the new button, or enter its ID by hand.</source>
        <translation>Com o leitor na base de descarga, encoste-lhe o novo botão ou introduza o código à mão.</translation>
    </message>
    <message>
        <source>Only the master may do this.</source>
        <translation>Só o responsável pode fazer isto.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;dicionar</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Tour &amp;Copy</source>
        <translation>&amp;Copiar ronda</translation>
    </message>
    <message>
        <source>Opens the selected row (double click)</source>
        <translation>Abre a linha selecionada (duplo clique)</translation>
    </message>
    <message>
        <source>Adds a new row</source>
        <translation>Adiciona uma linha</translation>
    </message>
    <message>
        <source>Deletes the selected row (Del)</source>
        <translation>Elimina a linha selecionada (Del)</translation>
    </message>
    <message>
        <source>Makes a new tour as a copy of another</source>
        <translation>Cria uma nova ronda como cópia de outra</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Locais</translation>
    </message>
    <message>
        <source>Event Books</source>
        <translation>Livros de ocorrências</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rondas</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>Leitores</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>S&amp;ite</source>
        <translation>Loc&amp;al</translation>
    </message>
    <message>
        <source>Event Book</source>
        <translation>Livro de ocorrências</translation>
    </message>
    <message>
        <source>User Group</source>
        <translation>Grupo de utilizadores</translation>
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
        <translation>Botões</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar:</translation>
    </message>
    <message>
        <source>Edit Reader</source>
        <translation>Editar leitor</translation>
    </message>
    <message>
        <source>Edit Time</source>
        <translation>Editar tempo</translation>
    </message>
    <message>
        <source>&amp;Edit Time</source>
        <translation>Editar &amp;tempo</translation>
    </message>
    <message>
        <source>&amp;Minutes since the previous point</source>
        <translation>&amp;Minutos desde o ponto anterior</translation>
    </message>
    <message>
        <source>Select Tour to copy</source>
        <translation>Escolher a ronda a copiar</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>Descri&amp;ption :</source>
        <translation>Descriçã&amp;o:</translation>
    </message>
    <message>
        <source>Tour Start Ti&amp;me:</source>
        <translation>&amp;Hora inicial:</translation>
    </message>
    <message>
        <source>To&amp;lerance (minutes):</source>
        <translation>To&amp;lerância (minutos):</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>Loc&amp;al:</translation>
    </message>
    <message>
        <source>A&amp;vailable Locations</source>
        <translation>Pontos de controlo disponí&amp;veis</translation>
    </message>
    <message>
        <source>Available Locations</source>
        <translation>Pontos de controlo disponíveis</translation>
    </message>
    <message>
        <source>Current T&amp;our Locations</source>
        <translation>&amp;Pontos da ronda</translation>
    </message>
    <message>
        <source>Current Tour Locations</source>
        <translation>Pontos da ronda</translation>
    </message>
    <message>
        <source>&amp;Add -&gt;</source>
        <translation>Ad&amp;icionar -&gt;</translation>
    </message>
    <message>
        <source>&lt;- &amp;Remove</source>
        <translation>&lt;- &amp;Remover</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descer</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>&amp;Esvaziar</translation>
    </message>
    <message>
        <source>Removes all points from the tour</source>
        <translation>Retira todos os pontos da ronda</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Customize Tour Sequence</source>
        <translation>Definir a ronda</translation>
    </message>
    <message>
        <source>Location Name</source>
        <translation>Ponto de controlo</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ponto de controlo</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Ponto de con&amp;trolo</translation>
    </message>
    <message>
        <source>Add New User</source>
        <translation>Novo utilizador</translation>
    </message>
    <message>
        <source>Add New Location</source>
        <translation>Novo ponto de controlo</translation>
    </message>
    <message>
        <source>Add New Event</source>
        <translation>Nova ocorrência</translation>
    </message>
    <message>
        <source>No Item is selected</source>
        <translation>Nenhum elemento selecionado</translation>
    </message>
    <message>
        <source>No sites yet. A site is a place with location buttons. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Ainda não há locais. Um local é um sítio com pontos de controlo. Prima «Adicionar» para criar um e depois «Editar» para lhe atribuir os botões.</translation>
    </message>
    <message>
        <source>No event books yet. The buttons of an event book stand for incidents. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>Ainda não há livros de ocorrências. Os botões de um livro representam ocorrências. Prima «Adicionar» para criar um e depois «Editar» para lhe atribuir os botões.</translation>
    </message>
    <message>
        <source>No tours yet. Press Add for a new one, then Edit to choose its locations.</source>
        <translation>Ainda não há rondas. Prima «Adicionar» para criar uma e depois «Editar» para escolher os seus pontos de controlo.</translation>
    </message>
    <message>
        <source>No readers yet. Put a reader into the docking station and press Add. Without a docking station no reader can be added.</source>
        <translation>Ainda não há leitores. Coloque um leitor na base de descarga e prima «Adicionar». Sem base de descarga não é possível adicionar leitores.</translation>
    </message>
    <message>
        <source>No buttons yet. Press Add, then touch the reader in the docking station with a button.</source>
        <translation>Ainda não há botões. Prima «Adicionar» e toque com um botão no leitor colocado na base de descarga.</translation>
    </message>
    <message>
        <source>No buttons yet. A new button is read at the docking station, which is not connected.</source>
        <translation>Ainda não há botões. Um botão novo é lido na base de descarga, que não está ligada.</translation>
    </message>
    <message>
        <source>This site has no location buttons yet. Add them on the Setup page: select the site and press Edit.</source>
        <translation>Este local ainda não tem pontos de controlo. Adicionam-se na página Configuração: selecione o local e prima «Editar».</translation>
    </message>
    <message>
        <source>The tour has no points yet. Select a location in the other list and press Add, in the order of the tour.</source>
        <translation>A ronda ainda não tem pontos. Selecione um ponto de controlo na outra lista e prima «Adicionar», pela ordem da ronda.</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text (Ctrl+F).</source>
        <translation>Mostra só as linhas que contêm este texto (Ctrl+F).</translation>
    </message>
    <message>
        <source>A touch that is early or late by no more minutes than this counts as on time.</source>
        <translation>Uma leitura com avanço ou atraso até este número de minutos conta como feita no horário.</translation>
    </message>
    <message>
        <source>For the first point: the minutes since the start of the tour.</source>
        <translation>No primeiro ponto: os minutos desde o início da ronda.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost.</source>
        <translation>«%0:s» vai perder-se.</translation>
    </message>
    <message>
        <source>"%0:s" and its buttons will be lost.</source>
        <translation>«%0:s» e os seus botões vão perder-se.</translation>
    </message>
    <message>
        <source>"%0:s" and its points will be lost.</source>
        <translation>«%0:s» e os seus pontos vão perder-se.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost. Touches that are already downloaded are kept.</source>
        <translation>«%0:s» vai perder-se. As leituras já descarregadas são conservadas.</translation>
    </message>
    <message>
        <source>The name could not be saved. Nothing was changed.</source>
        <translation>Não foi possível guardar o nome. Nada foi alterado.</translation>
    </message>
    <message>
        <source>The password is empty. Anyone could log in without one.</source>
        <translation>A palavra-passe está vazia. Qualquer pessoa poderia iniciar sessão sem ela.</translation>
    </message>
    <message>
        <source>Do you want to save it?</source>
        <translation>Deseja guardá-la?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Deseja mesmo eliminar este elemento?</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name.</source>
        <translation>Esse nome já está a ser usado. Introduza outro nome.</translation>
    </message>
    <message>
        <source>You must enter a name for this group</source>
        <translation>Introduza um nome</translation>
    </message>
    <message>
        <source>A name or description cannot contain line breaks or other control characters.</source>
        <translation>Um nome ou uma descrição não pode conter quebras de linha nem outros caracteres de controlo.</translation>
    </message>
    <message>
        <source>The tour could not be saved. Nothing was changed.</source>
        <translation>Não foi possível guardar a ronda. Nada foi alterado.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Discard them?</source>
        <translation>As alterações não foram guardadas. Descartá-las?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete it?</source>
        <translation>Deseja mesmo eliminar este grupo?</translation>
    </message>
    <message>
        <source>The selected group contains sub-items</source>
        <translation>O grupo selecionado contém botões.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this reader?</source>
        <translation>Deseja mesmo eliminar este leitor?</translation>
    </message>
    <message>
        <source>You must add at least one location before you can define a tour</source>
        <translation>Para definir uma ronda é preciso adicionar primeiro pelo menos um ponto de controlo</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this tour?</source>
        <translation>Deseja mesmo eliminar esta ronda?</translation>
    </message>
    <message>
        <source>The selected Tour contains data.</source>
        <translation>A ronda selecionada contém dados.</translation>
    </message>
    <message>
        <source>Cannot find any Tour Points to copy</source>
        <translation>Esta ronda não tem pontos para copiar</translation>
    </message>
    <message>
        <source>Cannot assign two sequential tour points with the same location</source>
        <translation>Dois pontos seguidos da ronda não podem ter o mesmo ponto de controlo</translation>
    </message>
    <message>
        <source>The tolerance value can only range from 0 to 59 minutes</source>
        <translation>A tolerância tem de estar entre 0 e 59 minutos</translation>
    </message>
    <message>
        <source>The total tour time can only range from 0 to 1439 minutes</source>
        <translation>A duração total da ronda tem de estar entre 0 e 1439 minutos</translation>
    </message>
    <message>
        <source>Only valid numbers from 0 to 1439 can be entered</source>
        <translation>Só são válidos números de 0 a 1439</translation>
    </message>
    <message>
        <source>The docking station is no longer connected. Enter the ID by hand, or go to the home page to connect again.</source>
        <translation>A base de descarga já não está ligada. Introduza o código à mão, ou vá à página Início para ligar novamente.</translation>
    </message>
    <message>
        <source>&amp;Archive Events</source>
        <translation>&amp;Arquivar leituras</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Cópia de segurança</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Company &amp;Info</source>
        <translation>Dados da &amp;empresa</translation>
    </message>
    <message>
        <source>&amp;About </source>
        <translation>&amp;Acerca de </translation>
    </message>
    <message>
        <source>Company Info</source>
        <translation>Dados da empresa</translation>
    </message>
    <message>
        <source>These lines are printed at the head of each report. After the next start, only the first 50 characters of a line are printed.</source>
        <translation>Estas linhas são impressas no cabeçalho de cada relatório. A partir do próximo arranque, só se imprimem os primeiros 50 caracteres de cada linha.</translation>
    </message>
    <message>
        <source>Line &amp;1:</source>
        <translation>Linha &amp;1:</translation>
    </message>
    <message>
        <source>Line &amp;2:</source>
        <translation>Linha &amp;2:</translation>
    </message>
    <message>
        <source>Line &amp;3:</source>
        <translation>Linha &amp;3:</translation>
    </message>
    <message>
        <source>Line &amp;4:</source>
        <translation>Linha &amp;4:</translation>
    </message>
    <message>
        <source>The company info cannot be saved. This file cannot be written:</source>
        <translation>Não é possível guardar os dados da empresa. Não é possível escrever neste ficheiro:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>You may use, change and pass on this program, as long as the text of the License stays with it.</source>
        <translation>Este programa pode ser usado, alterado e distribuído, desde que acompanhado do texto da licença.</translation>
    </message>
    <message>
        <source>It comes without any warranty.</source>
        <translation>É fornecido sem qualquer garantia.</translation>
    </message>
    <message>
        <source>For a description of the program, choose Help, Contents.</source>
        <translation>Encontra uma descrição do programa em Ajuda, Conteúdo.</translation>
    </message>
    <message>
        <source>If something does not work, report it to the person who looks after this installation. Give the version and the build shown above, and send this file:</source>
        <translation>Se algo não funcionar, contacte a pessoa responsável por esta instalação. Indique a versão e a compilação (Build) acima e envie este ficheiro:</translation>
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
        <translation>Esta pasta não existe. Escolha outra.</translation>
    </message>
    <message>
        <source>A file name can have at most 100 characters.</source>
        <translation>Um nome de ficheiro pode ter no máximo 100 caracteres.</translation>
    </message>
    <message>
        <source>Select backup destination</source>
        <translation>Escolher o destino da cópia de segurança</translation>
    </message>
    <message>
        <source>Database Files (*.mdb)</source>
        <translation>Bases de dados (*.mdb)</translation>
    </message>
    <message>
        <source>That filename is already in use. Please choose another filename</source>
        <translation>Esse nome de ficheiro já está a ser usado. Escolha outro</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Cópia de segurança</translation>
    </message>
    <message>
        <source>The database is being copied and checked.</source>
        <translation>A base de dados está a ser copiada e verificada.</translation>
    </message>
    <message>
        <source>Successfully copied the database to :</source>
        <translation>A base de dados foi copiada para:</translation>
    </message>
    <message>
        <source>The file was changed while it was read.</source>
        <translation>O ficheiro foi alterado durante a leitura.</translation>
    </message>
    <message>
        <source>The copy is damaged: %0:s</source>
        <translation>A cópia está danificada: %0:s</translation>
    </message>
    <message>
        <source>The copy does not have the rows of the database.</source>
        <translation>A cópia não tem as mesmas linhas que a base de dados.</translation>
    </message>
    <message>
        <source>The database was not copied.</source>
        <translation>A base de dados não foi copiada.</translation>
    </message>
    <message>
        <source>The database itself is damaged.</source>
        <translation>A própria base de dados está danificada.</translation>
    </message>
    <message>
        <source>The program itself uses this file. Please choose another filename.</source>
        <translation>Este ficheiro é usado pelo próprio programa. Escolha outro nome de ficheiro.</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>O ficheiro ou a sua pasta não existe.</translation>
    </message>
    <message>
        <source>Removed:</source>
        <translation>Eliminado:</translation>
    </message>
    <message>
        <source>Not removed:</source>
        <translation>Não eliminado:</translation>
    </message>
    <message>
        <source>A program was killed while it wrote to this file. Its journal is still beside it.</source>
        <translation>Um programa foi interrompido enquanto escrevia neste ficheiro. O seu diário ainda se encontra ao lado.</translation>
    </message>
    <message>
        <source>You do not have permission to read this file.</source>
        <translation>Não tem permissão para ler este ficheiro.</translation>
    </message>
    <message>
        <source>It is not a database of this program, or it is damaged.</source>
        <translation>Não é uma base de dados deste programa, ou está danificada.</translation>
    </message>
    <message>
        <source>The database is damaged:</source>
        <translation>A base de dados está danificada:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Falta:</translation>
    </message>
    <message>
        <source>Buttons whose group does not exist:</source>
        <translation>Botões cujo grupo não existe:</translation>
    </message>
    <message>
        <source>Tour points whose tour does not exist:</source>
        <translation>Pontos de ronda cuja ronda não existe:</translation>
    </message>
    <message>
        <source>Tour points whose button does not exist:</source>
        <translation>Pontos de ronda cujo botão não existe:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Comma Delimited Text (*.csv)</source>
        <translation>Texto separado por vírgulas (*.csv)</translation>
    </message>
    <message>
        <source>Archive Events</source>
        <translation>Arquivar leituras</translation>
    </message>
    <message>
        <source>Choose the first and the last day. Their events are moved into a file and deleted from the database. They cannot be brought back from the file.</source>
        <translation>Escolha o primeiro e o último dia. As leituras desses dias são passadas para um ficheiro e eliminadas da base de dados. Não é possível recuperá-las a partir do ficheiro.</translation>
    </message>
    <message>
        <source>Warning: This action will permanently delete the events from the database.</source>
        <translation>Atenção: as leituras vão ser eliminadas definitivamente da base de dados.</translation>
    </message>
    <message>
        <source>Select location of backup database file</source>
        <translation>Escolher a cópia de segurança a restaurar</translation>
    </message>
    <message>
        <source>That filename cannot be found. Please choose another filename</source>
        <translation>Esse ficheiro não foi encontrado. Escolha outro</translation>
    </message>
    <message>
        <source>This file is the database itself. Please choose a backup of it.</source>
        <translation>Este ficheiro é a própria base de dados. Escolha uma cópia de segurança.</translation>
    </message>
    <message>
        <source>Warning: This action will delete the existing database. You will loose ALL data in the existing database.</source>
        <translation>Atenção: a base de dados atual vai ser eliminada. TODOS os seus dados serão perdidos.</translation>
    </message>
    <message>
        <source>Are you sure you want to continue?</source>
        <translation>Deseja mesmo continuar?</translation>
    </message>
    <message>
        <source>There are no stored events within the dates you entered.</source>
        <translation>Não há leituras guardadas nesse período.</translation>
    </message>
    <message>
        <source>File Save Error: Archive Not Saved.  Please Try again.</source>
        <translation>Erro ao guardar: o arquivo não foi guardado. Tente novamente.</translation>
    </message>
    <message>
        <source>Events Archived Successfully</source>
        <translation>As leituras foram arquivadas</translation>
    </message>
    <message>
        <source>Number of Events =</source>
        <translation>Número de leituras:</translation>
    </message>
    <message>
        <source>FileName = </source>
        <translation>Nome do ficheiro: </translation>
    </message>
    <message>
        <source>The events are written to the file and then deleted from the database.</source>
        <translation>As leituras são copiadas para o ficheiro e depois eliminadas da base de dados.</translation>
    </message>
    <message>
        <source>%0:s events were written, but the database deleted %1:s. Nothing was archived.</source>
        <translation>Foram escritas %0:s leituras, mas foram eliminadas %1:s da base de dados. Nada foi arquivado.</translation>
    </message>
    <message>
        <source>The events were written to %0:s, but they are still in the database: %1:s</source>
        <translation>As leituras foram copiadas para %0:s, mas ainda estão na base de dados: %1:s</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restauro</translation>
    </message>
    <message>
        <source>The backup is being copied and checked.</source>
        <translation>A cópia de segurança está a ser copiada e verificada.</translation>
    </message>
    <message>
        <source>The database is in use. Waiting until it is free.</source>
        <translation>A base de dados está a ser usada. A aguardar que fique livre.</translation>
    </message>
    <message>
        <source>Successfully copied the database</source>
        <translation>A base de dados foi restaurada</translation>
    </message>
    <message>
        <source>Warning : The program will now close.</source>
        <translation>Atenção: o programa vai ser fechado.</translation>
    </message>
    <message>
        <source>Please restart the program to continue.</source>
        <translation>Inicie novamente o programa para continuar.</translation>
    </message>
    <message>
        <source>The database was not restored. It is as it was before.</source>
        <translation>A base de dados não foi restaurada. Está como estava.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program.</source>
        <translation>O ficheiro escolhido não é uma base de dados deste programa.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program, its password is different, or it is damaged.</source>
        <translation>O ficheiro escolhido não é uma base de dados deste programa, tem outra palavra-passe ou está danificado.</translation>
    </message>
    <message>
        <source>The chosen file is not a complete database of this program. It lacks %0:s.</source>
        <translation>O ficheiro escolhido não é uma base de dados completa deste programa. Falta: %0:s.</translation>
    </message>
    <message>
        <source>The chosen file is damaged: %0:s</source>
        <translation>O ficheiro escolhido está danificado: %0:s</translation>
    </message>
    <message>
        <source>Another program has used the database meanwhile. Please try again.</source>
        <translation>Entretanto, outro programa usou a base de dados. Tente novamente.</translation>
    </message>
    <message>
        <source>The database was restored, but the disk reported an error. Please check it.</source>
        <translation>A base de dados foi restaurada, mas o disco comunicou um erro. Verifique o disco.</translation>
    </message>
</context>
</TS>
