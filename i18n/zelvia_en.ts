<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="it">
<context>
    <name>DeskPages</name>
    <message>
        <source>Anno nuovo</source>
        <translation>New year</translation>
    </message>
    <message>
        <source>Anni passati</source>
        <translation>Past years</translation>
    </message>
    <message>
        <source>Controlla e ripara</source>
        <translation>Check and mend</translation>
    </message>
    <message>
        <source>Giornale</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Copie</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Due computer</source>
        <translation>Two computers</translation>
    </message>
    <message>
        <source>Dall&apos;orologio</source>
        <translation>From the watch</translation>
    </message>
    <message>
        <source>Esporta</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Libro</source>
        <translation>Book</translation>
    </message>
</context>
<context>
    <name>FigureTexts</name>
    <message>
        <source>1 uscita</source>
        <translation>1 run</translation>
    </message>
    <message>
        <source>%1 uscite</source>
        <translation>%1 runs</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Opzione sconosciuta: %1</source>
        <translation>Unknown option: %1</translation>
    </message>
    <message>
        <source>%1, riga %2</source>
        <translation>%1, line %2</translation>
    </message>
    <message>
        <source>numero</source>
        <translation>number</translation>
    </message>
    <message>
        <source>giorno</source>
        <translation>day</translation>
    </message>
    <message>
        <source>mese</source>
        <translation>month</translation>
    </message>
    <message>
        <source>anno</source>
        <translation>year</translation>
    </message>
    <message>
        <source>gara</source>
        <translation>race</translation>
    </message>
    <message>
        <source>località</source>
        <translation>place</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>metri</source>
        <translation>metres</translation>
    </message>
    <message>
        <source>partecipanti</source>
        <translation>runners</translation>
    </message>
    <message>
        <source>risultato</source>
        <translation>result</translation>
    </message>
    <message>
        <source>ore</source>
        <translation>hours</translation>
    </message>
    <message>
        <source>minuti</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>secondi</source>
        <translation>seconds</translation>
    </message>
    <message>
        <source>categoria</source>
        <translation>category</translation>
    </message>
    <message>
        <source>risultato categoria</source>
        <translation>result in category</translation>
    </message>
    <message>
        <source>nome</source>
        <translation>name</translation>
    </message>
    <message>
        <source>lunghezza</source>
        <translation>length</translation>
    </message>
    <message>
        <source>tratto %1</source>
        <translation>stretch %1</translation>
    </message>
    <message>
        <source>tratto %1, km</source>
        <translation>stretch %1, km</translation>
    </message>
    <message>
        <source>tratto %1, metri</source>
        <translation>stretch %1, metres</translation>
    </message>
    <message>
        <source>%1, ordine</source>
        <translation>%1, order</translation>
    </message>
    <message>
        <source>giorno %1</source>
        <translation>day %1</translation>
    </message>
    <message>
        <source>lista %1</source>
        <translation>list %1</translation>
    </message>
    <message>
        <source>percorso «%1»</source>
        <translation>route “%1”</translation>
    </message>
    <message>
        <source>gara %1</source>
        <translation>race %1</translation>
    </message>
    <message>
        <source>L&apos;ultima volta non è stato salvato tutto ciò che era stato scritto nel diario:</source>
        <translation>Last time not all that was entered in the diary was saved:</translation>
    </message>
    <message>
        <source>e altro ancora (%1)</source>
        <translation>and more (%1)</translation>
    </message>
    <message>
        <source>La cartella personale non è nota (HOME): indicare una CARTELLA.</source>
        <translation>The home folder is not known (HOME): name a FOLDER.</translation>
    </message>
    <message>
        <source>Per «%1» manca qualcosa.</source>
        <translation>“%1” needs more words.</translation>
    </message>
    <message>
        <source>Per «%1» «%2» è di troppo.</source>
        <translation>“%1” doesn&apos;t take “%2”.</translation>
    </message>
    <message>
        <source>Dopo --da manca la CARTELLA.</source>
        <translation>--da needs the FOLDER.</translation>
    </message>
    <message>
        <source>Non ci sono copie.</source>
        <translation>There are no copies.</translation>
    </message>
    <message>
        <source>Il nome della cartella NUOVA è vuoto.</source>
        <translation>The name of the NEW folder is empty.</translation>
    </message>
    <message>
        <source>La copia %1 andrebbe in «%2».</source>
        <translation>Copy %1 would go to “%2”.</translation>
    </message>
    <message>
        <source>La copia %1 è in «%2». Si apre con il comando «zelvia» seguito dal nome di questa cartella.</source>
        <translation>Copy %1 is in “%2”. It opens with the command “zelvia” and the name of this folder.</translation>
    </message>
    <message>
        <source>Attenzione: «%1» indica un file di un&apos;altra cartella.</source>
        <translation>Beware: “%1” points to a file of another folder.</translation>
    </message>
    <message>
        <source>La cartella personale non è nota (HOME): indicare --cartella CARTELLA.</source>
        <translation>The home folder is not known (HOME): name it with --cartella FOLDER.</translation>
    </message>
    <message>
        <source>Si farebbe una copia di «%1», se qualcosa è cambiato.</source>
        <translation>A copy of “%1” would be made, if anything has changed.</translation>
    </message>
    <message>
        <source>Copia fatta.</source>
        <translation>Copy made.</translation>
    </message>
    <message>
        <source>Niente è cambiato dall&apos;ultima copia.</source>
        <translation>Nothing has changed since the last copy.</translation>
    </message>
    <message>
        <source>In «%1» non c&apos;è niente da copiare.</source>
        <translation>There is nothing to copy in “%1”.</translation>
    </message>
    <message>
        <source>Il diario è aperto: la copia si fa quando è chiuso.</source>
        <translation>The diary is open: the copy is made once it is closed.</translation>
    </message>
    <message>
        <source>L&apos;ultima copia è anche nel secondo posto, «%1».</source>
        <translation>The latest copy is in the second place too, “%1”.</translation>
    </message>
    <message>
        <source>Non c&apos;è un secondo posto per le copie.</source>
        <translation>There is no second place for the copies.</translation>
    </message>
    <message>
        <source>Le copie vanno anche in «%1».</source>
        <translation>The copies go to “%1” too.</translation>
    </message>
    <message>
        <source>«%1» non è una CARTELLA.</source>
        <translation>“%1” is not a FOLDER.</translation>
    </message>
    <message>
        <source>È una prova: niente è stato cambiato.</source>
        <translation>This is a rehearsal: nothing was changed.</translation>
    </message>
    <message>
        <source>Le copie non vanno più in un secondo posto; quelle che ci sono restano.</source>
        <translation>The copies no longer go to a second place; those that are there stay.</translation>
    </message>
    <message>
        <source>Alla fine di Zelvia l&apos;ultima copia va anche in «%1».</source>
        <translation>At the end of Zelvia the latest copy goes to “%1” too.</translation>
    </message>
    <message>
        <source>la cartella personale non è nota (HOME)</source>
        <translation>the home folder is not known (HOME)</translation>
    </message>
    <message>
        <source>«%1» non è il numero di una copia.</source>
        <translation>“%1” is not the number of a copy.</translation>
    </message>
    <message>
        <source>la copia %1 non c&apos;è; «%2 elenco» mostra quelle che ci sono</source>
        <translation>there is no copy %1; “%2 elenco” lists those that there are</translation>
    </message>
    <message>
        <source>Manca il COMANDO.</source>
        <translation>The COMMAND is missing.</translation>
    </message>
    <message>
        <source>«--da» non va con «%1».</source>
        <translation>“--da” doesn&apos;t go with “%1”.</translation>
    </message>
    <message>
        <source>Comando sconosciuto: %1</source>
        <translation>Unknown command: %1</translation>
    </message>
    <message>
        <source>«%1» non è una cartella vuota: una copia si rimette soltanto in una cartella nuova o vuota</source>
        <translation>“%1” is not an empty folder: a copy can only be put into a new or an empty one</translation>
    </message>
    <message>
        <source>niente</source>
        <translation>nothing</translation>
    </message>
    <message>
        <source>  Nella copia il diario non c&apos;è.</source>
        <translation>  In the copy the diary is missing.</translation>
    </message>
    <message>
        <source>  Nella copia il diario è incompleto: %1 giorni su %2.</source>
        <translation>  In the copy the diary is not whole: %1 days of %2.</translation>
    </message>
    <message>
        <source>  Adesso il diario non c&apos;è.</source>
        <translation>  The present diary is missing.</translation>
    </message>
    <message>
        <source>  Adesso il diario è incompleto: %1 giorni su %2.</source>
        <translation>  The present diary is not whole: %1 days of %2.</translation>
    </message>
    <message>
        <source>%1 giorno diverso</source>
        <translation>%1 day differs</translation>
    </message>
    <message>
        <source>%1 giorni diversi</source>
        <translation>%1 days differ</translation>
    </message>
    <message>
        <source>    %1: nella copia %2, adesso %3</source>
        <translation>    %1: %2 in the copy, %3 now</translation>
    </message>
    <message>
        <source>%1 diario</source>
        <translation>%1 diary</translation>
    </message>
    <message>
        <source>%1 diari</source>
        <translation>%1 diaries</translation>
    </message>
    <message>
        <source>c&apos;è soltanto adesso</source>
        <translation>only now</translation>
    </message>
    <message>
        <source>c&apos;è soltanto nella copia</source>
        <translation>only in the copy</translation>
    </message>
    <message>
        <source>diverso</source>
        <translation>differs</translation>
    </message>
    <message>
        <source>Copia %1 del %2, ore %3, e «%4» adesso:</source>
        <translation>Copy %1 of %2, %3, and “%4” now:</translation>
    </message>
    <message>
        <source>nessuna differenza.</source>
        <translation>no difference.</translation>
    </message>
    <message>
        <source>un altro Zelvia sta lavorando alle copie («%1»)</source>
        <translation>another Zelvia is working on the copies (“%1”)</translation>
    </message>
    <message>
        <source>la cartella «%1» non c&apos;è: il secondo posto dev&apos;esserci già</source>
        <translation>there is no folder “%1”: the second place has to be there already</translation>
    </message>
    <message>
        <source>in «%1» stanno già le prime copie: il secondo posto dev&apos;essere un altro</source>
        <translation>the first copies are in “%1” already: the second place has to be another</translation>
    </message>
    <message>
        <source>«%1» sta fra i diari: ogni copia conterrebbe quelle di prima; il secondo posto dev&apos;essere un altro</source>
        <translation>“%1” lies among the diaries: each copy would hold the earlier ones; the second place has to be another</translation>
    </message>
    <message>
        <source>nel nome di «%1» c&apos;è un carattere di controllo</source>
        <translation>the name of “%1” has a control character</translation>
    </message>
    <message>
        <source>«%1» è un collegamento, e non viene seguito</source>
        <translation>“%1” is a link, which is not followed</translation>
    </message>
    <message>
        <source>«%1» non c&apos;è: la chiavetta o la cartella è staccata</source>
        <translation>“%1” is not there: the stick or the folder is unplugged</translation>
    </message>
    <message>
        <source>una virgoletta non è chiusa</source>
        <translation>a quotation mark is not closed</translation>
    </message>
    <message>
        <source>il file non è un testo in UTF-8</source>
        <translation>the file is not a text in UTF-8</translation>
    </message>
    <message>
        <source>«%1» non è un valore di «%2»</source>
        <translation>“%1” is not a value of “%2”</translation>
    </message>
    <message>
        <source>la fine è dopo le 24:59:59</source>
        <translation>the end is after 24:59:59</translation>
    </message>
    <message>
        <source>«%1» non è una data dal %2 al %3</source>
        <translation>“%1” is not a date from %2 to %3</translation>
    </message>
    <message>
        <source>manca la data</source>
        <translation>the date is missing</translation>
    </message>
    <message>
        <source>la riga non dice un chilometro da 1 a 100 e un tempo</source>
        <translation>the row has no kilometre from 1 to 100 with a time</translation>
    </message>
    <message>
        <source>Gli strumenti di Zelvia stanno lavorando ai diari di «%1»: il diario si apre quando hanno finito. Riprovare fra poco.</source>
        <translation>The tools of Zelvia are working on the diaries of “%1”: the diary opens once they have finished. Try again in a moment.</translation>
    </message>
    <message>
        <source>La copia di sicurezza del diario non è riuscita; il diario si apre lo stesso.</source>
        <translation>The safety copy of the diary failed; the diary opens all the same.</translation>
    </message>
    <message>
        <source>Due computer hanno scritto negli stessi file, e il servizio che tiene uguali le cartelle ne ha lasciato qui le seconde versioni:

%1
«Due computer», negli strumenti, le unisce ai file del diario giorno per giorno. Fino ad allora il diario si apre senza ciò che vi è scritto.</source>
        <translation>Two computers have written to the same files, and the service that keeps the folders alike has left the second versions here:

%1
“Two computers” in the tools merges them into the files of the diary day by day. Until then the diary opens without what they hold.</translation>
    </message>
    <message>
        <source>Strumenti…</source>
        <translation>Tools…</translation>
    </message>
    <message>
        <source>Apri lo stesso</source>
        <translation>Open anyway</translation>
    </message>
    <message>
        <source>Per unirle: zelvia-strumenti --cartella «%1» unisci</source>
        <translation>To merge them: zelvia-strumenti --cartella “%1” unisci</translation>
    </message>
    <message>
        <source>La copia nel secondo posto non è riuscita: %1.
Le copie di sempre ci sono tutte. Quella si farà da sé alla fine di Zelvia, quando sarà possibile; fino ad allora non verrà più detto.</source>
        <translation>The copy to the second place failed: %1.
The usual copies are all there. This one is made by itself at the end of Zelvia as soon as it can be; until then it won&apos;t be mentioned again.</translation>
    </message>
    <message>
        <source>riga %1</source>
        <translation>line %1</translation>
    </message>
    <message>
        <source>%1 (soltanto con --sovrascrivi)</source>
        <translation>%1 (only with --sovrascrivi)</translation>
    </message>
    <message>
        <source>%1, se lo si vuole: negli strumenti</source>
        <translation>%1, if you want that: in the tools</translation>
    </message>
    <message>
        <source>C&apos;è qualcosa che non va:</source>
        <translation>Something is wrong:</translation>
    </message>
    <message>
        <source>Nel diario «%1» c&apos;è qualcosa che non va:</source>
        <translation>Something is wrong with the diary “%1”:</translation>
    </message>
    <message>
        <source>«Ripara» ne mette a posto %1 su %2; i file di prima restano in una copia di sicurezza.</source>
        <translation>“Repair” mends %1 of %2; the former files stay in a safety copy.</translation>
    </message>
    <message>
        <source>La riparazione non è riuscita; il diario si apre lo stesso.</source>
        <translation>The repair failed; the diary opens all the same.</translation>
    </message>
    <message>
        <source>Ripara</source>
        <translation>Repair</translation>
    </message>
    <message>
        <source>Il diario si apre lo stesso. Per ripararlo: zelvia-strumenti --cartella «%1» ripara</source>
        <translation>The diary opens all the same. To repair it: zelvia-strumenti --cartella “%1” ripara</translation>
    </message>
    <message>
        <source>Non è stato fatto tutto; il resto si trova ancora con «zelvia-strumenti giornale».
%1</source>
        <translation>Not everything was done; “zelvia-strumenti giornale” still finds the rest.
%1</translation>
    </message>
    <message>
        <source>Nel diario intanto c&apos;è altro, che verrebbe sostituito.</source>
        <translation>Meanwhile the diary holds something else, which would be replaced.</translation>
    </message>
    <message>
        <source>Riprendi</source>
        <translation>Bring back</translation>
    </message>
    <message>
        <source>Lascia</source>
        <translation>Leave</translation>
    </message>
    <message>
        <source>Riprendi tutto</source>
        <translation>Bring all back</translation>
    </message>
    <message>
        <source>Giorno per giorno…</source>
        <translation>Day by day…</translation>
    </message>
    <message>
        <source>Dimentica</source>
        <translation>Forget</translation>
    </message>
    <message>
        <source>Più tardi</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Per riprenderlo: zelvia-strumenti --cartella «%1» giornale riprendi</source>
        <translation>To bring it back: zelvia-strumenti --cartella “%1” giornale riprendi</translation>
    </message>
    <message>
        <source>Il diario del %1 non è pronto; si apre quello di prima.</source>
        <translation>The diary of %1 is not ready; the former one opens.</translation>
    </message>
    <message>
        <source>È cominciato il %1, e il diario più recente è del %2.

Preparare il diario del %1, con le liste, i percorsi e le tabelle di adesso e il calendario delle gare vuoto? Quello di prima resta com&apos;è e si riapre con «Apri».</source>
        <translation>%1 has begun, and the newest diary is of %2.

Prepare the diary of %1, with the present lists, routes and training tables and an empty calendar of races? The former one stays as it is and opens again with “Apri”.</translation>
    </message>
    <message>
        <source>Prepara</source>
        <translation>Prepare</translation>
    </message>
    <message>
        <source>Non ora</source>
        <translation>Not now</translation>
    </message>
    <message>
        <source>Per prepararlo: zelvia-strumenti --cartella «%1» anno %2</source>
        <translation>To prepare it: zelvia-strumenti --cartella “%1” anno %2</translation>
    </message>
    <message>
        <source>… e altri %1.</source>
        <translation>… and %1 more.</translation>
    </message>
    <message>
        <source>Zelvia ha bisogno di uno schermo.</source>
        <translation>Zelvia needs a display.</translation>
    </message>
    <message>
        <source>Zelvia non può stare in «%1»: %2</source>
        <translation>Zelvia can&apos;t live in “%1”: %2</translation>
    </message>
    <message>
        <source>è la radice del disco. Indicare una cartella, per esempio /home/anna/Zelvia.</source>
        <translation>it is the root of the disk. Name a folder, such as /home/anna/Zelvia.</translation>
    </message>
    <message>
        <source>nel percorso c&apos;è un punto («.»), e nei nomi delle cartelle del programma i punti non sono ammessi: il nome del diario finisce al primo punto. Indicare una cartella senza punti.</source>
        <translation>the path has a full stop (“.”), which the names of the program&apos;s folders must not have: the name of a diary ends at the first one. Name a folder without full stops.</translation>
    </message>
    <message>
        <source>nel percorso c&apos;è la parola «ZelviaFile», riservata alla cartella dei diari.</source>
        <translation>the path has the word “ZelviaFile”, which is reserved for the folder of the diaries.</translation>
    </message>
    <message>
        <source>nel percorso c&apos;è una barra rovesciata («\»).</source>
        <translation>the path has a backslash (“\”).</translation>
    </message>
    <message>
        <source>nel percorso ci sono delle virgolette («&quot;»).</source>
        <translation>the path has quotation marks (“&quot;”).</translation>
    </message>
    <message>
        <source>nel percorso c&apos;è un carattere di controllo.</source>
        <translation>the path has a control character.</translation>
    </message>
    <message>
        <source>nel percorso c&apos;è un carattere che i file del diario non possono contenere (fuori da Windows-1252).</source>
        <translation>the path has a character that the files of the diary can&apos;t hold (not in Windows-1252).</translation>
    </message>
    <message>
        <source>i collegamenti del percorso girano in tondo.</source>
        <translation>the links of the path go round in a circle.</translation>
    </message>
    <message>
        <source>«%1» non è una cartella.</source>
        <translation>“%1” is not a folder.</translation>
    </message>
    <message>
        <source>nella cartella non si può scrivere.</source>
        <translation>the folder can&apos;t be written to.</translation>
    </message>
    <message>
        <source>la cartella non si può creare: in «%1» non si può scrivere.</source>
        <translation>the folder can&apos;t be made: “%1” can&apos;t be written to.</translation>
    </message>
    <message>
        <source>la cartella non si può creare.</source>
        <translation>the folder can&apos;t be made.</translation>
    </message>
    <message>
        <source>il nome della cartella è vuoto.</source>
        <translation>the name of the folder is empty.</translation>
    </message>
    <message>
        <source>AAAA [--gare]</source>
        <translation>YYYY [--gare]</translation>
    </message>
    <message>
        <source>prepara il diario vuoto dell&apos;anno AAAA, con le
liste, i percorsi e le tabelle di quello di
adesso; --gare: anche con il suo calendario</source>
        <translation>prepares the empty diary of the year YYYY with the
present lists, routes and training tables;
--gare: with its calendar of races too</translation>
    </message>
    <message>
        <source>mostra i diari della cartella: anno, uscite,
chilometri, gare</source>
        <translation>lists the diaries of the folder: year, runs,
kilometres, races</translation>
    </message>
    <message>
        <source>[DIARIO ...]</source>
        <translation>[DIARY ...]</translation>
    </message>
    <message>
        <source>legge tutto come il programma e dice che cosa
non va, una riga per difetto</source>
        <translation>reads everything as the program does and says what
is wrong, a line for each fault</translation>
    </message>
    <message>
        <source>ripara ciò che ha un solo rimedio; il resto con
--sovrascrivi</source>
        <translation>repairs what has only one remedy; the rest with
--sovrascrivi</translation>
    </message>
    <message>
        <source>[riprendi [DATA ...] | dimentica]</source>
        <translation>[riprendi [DATE ...] | dimentica]</translation>
    </message>
    <message>
        <source>mostra ciò che è stato scritto e non salvato;
riprendi: lo riporta nel diario, tutto o i giorni
indicati (anche: liste, percorsi, calendario);
dimentica: lo cancella dal giornale</source>
        <translation>shows what was entered and not saved;
riprendi: brings it back, all or the days named
(or: liste, percorsi, calendario);
dimentica: removes it from the journal</translation>
    </message>
    <message>
        <source>FILE ...</source>
        <translation>FILE ...</translation>
    </message>
    <message>
        <source>mette nel diario le corse di un orologio (FIT,
TCX, GPX) o di una tabella (CSV), anche intere
cartelle; --tutti: non solo le corse; --in-moto:
il tempo senza le pause; --fuso +N: l&apos;ora di là;
--colonna TESTATA=NOME: una colonna della tabella</source>
        <translation>puts the runs of a watch (FIT, TCX, GPX) or of a
table (CSV) into the diary, whole folders too;
--tutti: not only runs; --in-moto: the time
without the pauses; --fuso +N: the time there;
--colonna HEAD=NAME: a column of the table</translation>
    </message>
    <message>
        <source>--formato F [-o FILE]</source>
        <translation>--formato F [-o FILE]</translation>
    </message>
    <message>
        <source>i giorni (csv o jsonl), i tempi al chilometro
(splits), le gare e la tabella attiva (ics)</source>
        <translation>the days (csv or jsonl), the kilometre times
(splits), races and active training table (ics)</translation>
    </message>
    <message>
        <source>--formato F -o FILE</source>
        <translation>--formato F -o FILE</translation>
    </message>
    <message>
        <source>il libro dell&apos;anno, da stampare e rilegare (a4 o
a5, in PDF) o per il telefono (html)</source>
        <translation>the book of the year, to print and bind (a4 or a5,
as PDF) or for the telephone (html)</translation>
    </message>
    <message>
        <source>[CARTELLA | FILE ...]</source>
        <translation>[FOLDER | FILE ...]</translation>
    </message>
    <message>
        <source>unisce giorno per giorno ciò che due computer
hanno scritto: i file in conflitto che un servizio
ha messo accanto agli altri, o quelli indicati</source>
        <translation>merges day by day what two computers have written:
the conflicting files that a service has laid
beside the others, or those named</translation>
    </message>
    <message>
        <source>COMANDO ...</source>
        <translation>COMMAND ...</translation>
    </message>
    <message>
        <source>le copie di sicurezza, come zelvia-copie:
elenco, confronta, rimetti, crea;
rimetti NUMERO --giorno DATA ...: quei giorni nel
diario; rimetti NUMERO --intero: tutto il diario</source>
        <translation>the safety copies, as zelvia-copie:
elenco, confronta, rimetti, crea;
rimetti NUMBER --giorno DATE ...: those days into
the diary; rimetti NUMBER --intero: all of it</translation>
    </message>
    <message>
        <source>
  --cartella CARTELLA   la cartella del programma: di solito Zelvia, nella
                        cartella personale
  --diario NOME         il diario: di solito quello che si apre all&apos;avvio
  --pagina AZIONE       apre la finestra su quella pagina
  --tsv                 righe da leggere con un programma, con una testata
  --prova               mostra soltanto che cosa cambierebbe
  --si                  non chiede conferma
  --sovrascrivi         anche ciò che altrimenti resta com&apos;è
  --help                mostra questo testo
</source>
        <translation>
  --cartella FOLDER     the program&apos;s folder: usually Zelvia in the home folder
  --diario NAME         the diary: usually the one that opens at the start
  --pagina ACTION       opens the window at that page
  --tsv                 lines for programs, with a head
  --prova               only shows what would change
  --si                  doesn&apos;t ask
  --sovrascrivi         also what otherwise stays as it is
  --help                shows this text
</translation>
    </message>
    <message>
        <source>Uso: zelvia-strumenti [OPZIONI] AZIONE ...

Lavora sui diari di Zelvia quando sono chiusi. Senza AZIONE apre la finestra
degli strumenti.
</source>
        <translation>Usage: zelvia-strumenti [OPTIONS] ACTION ...

Works on Zelvia&apos;s diaries while they are closed. Without an ACTION it opens the
window of the tools.
</translation>
    </message>
    <message>
        <source>Manca l&apos;AZIONE.</source>
        <translation>The ACTION is missing.</translation>
    </message>
    <message>
        <source>Azione sconosciuta: %1</source>
        <translation>Unknown action: %1</translation>
    </message>
    <message>
        <source>La modifica era cominciata: il prossimo zelvia-strumenti la completa.</source>
        <translation>The change had begun: the next zelvia-strumenti completes it.</translation>
    </message>
    <message>
        <source>Niente è stato cambiato.</source>
        <translation>Nothing was changed.</translation>
    </message>
    <message>
        <source>Dopo %1 manca %2.</source>
        <translation>%1 needs %2.</translation>
    </message>
    <message>
        <source>un valore</source>
        <translation>a value</translation>
    </message>
    <message>
        <source>la CARTELLA</source>
        <translation>the FOLDER</translation>
    </message>
    <message>
        <source>il NOME</source>
        <translation>the NAME</translation>
    </message>
    <message>
        <source>«%1» non è il nome di un diario.</source>
        <translation>“%1” is not the name of a diary.</translation>
    </message>
    <message>
        <source>l&apos;AZIONE</source>
        <translation>the ACTION</translation>
    </message>
    <message>
        <source>Manca --formato.</source>
        <translation>--formato is missing.</translation>
    </message>
    <message>
        <source>«%1» non è un formato: a4, a5 o html.</source>
        <translation>“%1” is not a format: a4, a5 or html.</translation>
    </message>
    <message>
        <source>Manca -o FILE.</source>
        <translation>-o FILE is missing.</translation>
    </message>
    <message>
        <source>«%1» c&apos;è già e non è un file</source>
        <translation>“%1” exists already and is not a file</translation>
    </message>
    <message>
        <source>la cartella «%1» non c&apos;è</source>
        <translation>there is no folder “%1”</translation>
    </message>
    <message>
        <source>Si scriverebbe «%1».</source>
        <translation>“%1” would be written.</translation>
    </message>
    <message>
        <source>C&apos;è già «%1». Sostituirlo?</source>
        <translation>“%1” exists already. Replace it?</translation>
    </message>
    <message>
        <source>«%1» c&apos;è già; lo sostituisce --sovrascrivi</source>
        <translation>“%1” exists already; --sovrascrivi replaces it</translation>
    </message>
    <message>
        <source>nel diario «%1» non è scritto nessun giorno: il libro sarebbe vuoto</source>
        <translation>no day is written in the diary “%1”: the book would be empty</translation>
    </message>
    <message>
        <source>manca il programma che disegna le pagine («%1»)</source>
        <translation>the program that draws the pages is missing (“%1”)</translation>
    </message>
    <message>
        <source>le pagine del libro non si possono disegnare</source>
        <translation>the pages of the book can&apos;t be drawn</translation>
    </message>
    <message>
        <source>il diario «%1» non c&apos;è: «zelvia-strumenti anni» mostra quelli che ci sono</source>
        <translation>there is no diary “%1”: “zelvia-strumenti anni” lists those that there are</translation>
    </message>
    <message>
        <source>Tutto a posto.</source>
        <translation>All is well.</translation>
    </message>
    <message>
        <source>«%1» non si legge neanche riparato («%2»)</source>
        <translation>“%1” can&apos;t be read even once repaired (“%2”)</translation>
    </message>
    <message>
        <source>«%1» è in conflitto con «%2»: «zelvia-strumenti unisci» li unisce.</source>
        <translation>“%1” is in conflict with “%2”: “zelvia-strumenti unisci” merges them.</translation>
    </message>
    <message>
        <source>Riparare anche ciò che ha un rimedio soltanto probabile, %1?</source>
        <translation>Repair also what has only a likely remedy, %1?</translation>
    </message>
    <message>
        <source>Da riparare: %1. Restano come sono: %2.</source>
        <translation>To be repaired: %1. Left as they are: %2.</translation>
    </message>
    <message>
        <source>Riparare?</source>
        <translation>Repair?</translation>
    </message>
    <message>
        <source>Riparati: %1. I file di prima sono nell&apos;ultima copia di sicurezza.</source>
        <translation>Repaired: %1. The former files are in the latest safety copy.</translation>
    </message>
    <message>
        <source>il diario «%1» non c&apos;è («%2»)</source>
        <translation>there is no diary “%1” (“%2”)</translation>
    </message>
    <message>
        <source>il diario «%1» non si legge per intero («%2»): «zelvia-strumenti controlla» dice dove</source>
        <translation>the diary “%1” can&apos;t be read as a whole (“%2”): “zelvia-strumenti controlla” says where</translation>
    </message>
    <message>
        <source>Una modifica è rimasta a metà: la completa il primo comando senza --prova.</source>
        <translation>A change was left half done: the first command without --prova completes it.</translation>
    </message>
    <message>
        <source>«%1» non c&apos;è; la cartella di Zelvia si indica con --cartella</source>
        <translation>“%1” is not there; --cartella names the folder of Zelvia</translation>
    </message>
    <message>
        <source>nel nome di «%1» c&apos;è un carattere che il programma non conosce (fuori da Windows-1252)</source>
        <translation>the name of “%1” has a character that the program doesn&apos;t know (not in Windows-1252)</translation>
    </message>
    <message>
        <source>in «%1» non ci sono diari di Zelvia (manca la cartella «%2»); la cartella si indica con --cartella</source>
        <translation>there are no diaries of Zelvia in “%1” (the folder “%2” is missing); --cartella names the folder</translation>
    </message>
    <message>
        <source>il diario di «%1» è aperto, o ci lavora un altro comando: chiuderlo e riprovare</source>
        <translation>the diary of “%1” is open, or another command is working on it: close it and try again</translation>
    </message>
    <message>
        <source>È stata completata una modifica rimasta a metà: %1.</source>
        <translation>A change that was left half done was completed: %1.</translation>
    </message>
    <message>
        <source>«%1» è cambiato nel frattempo ed è rimasto com&apos;è.</source>
        <translation>“%1” has changed meanwhile and was left as it is.</translation>
    </message>
    <message>
        <source>«%1» %2; il diario si indica con --diario</source>
        <translation>“%1” %2; --diario names the diary</translation>
    </message>
    <message>
        <source>non si legge (%1)</source>
        <translation>can&apos;t be read (%1)</translation>
    </message>
    <message>
        <source>indica «%1», che non è un diario di questa cartella</source>
        <translation>names “%1”, which is not a diary of this folder</translation>
    </message>
    <message>
        <source>Manca la conferma: niente è stato cambiato. Confermare da un terminale, o con --si.</source>
        <translation>The confirmation is missing: nothing was changed. Confirm from a terminal, or with --si.</translation>
    </message>
    <message>
        <source>%1 (s/N)</source>
        <translation>%1 (y/N)</translation>
    </message>
    <message>
        <source>s</source>
        <translation>y</translation>
    </message>
    <message>
        <source>sì</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>il diario è cambiato mentre si aspettava la risposta: riprovare</source>
        <translation>the diary has changed during the wait for the answer: try again</translation>
    </message>
    <message>
        <source>la copia di sicurezza non si può fare: la cartella personale non è nota (HOME)</source>
        <translation>the safety copy can&apos;t be made: the home folder is not known (HOME)</translation>
    </message>
    <message>
        <source>Numero del giorno</source>
        <translation>Number of the day</translation>
    </message>
    <message>
        <source>in questo file non c&apos;è nessun giorno: il programma lo direbbe con un errore</source>
        <translation>there is no day in this file: the program would say so with an error</translation>
    </message>
    <message>
        <source>al posto del giorno %1 c&apos;è il numero %2; il programma si regola sul posto: diventa %1</source>
        <translation>in the place of day %1 stands the number %2; the program goes by the place: becomes %1</translation>
    </message>
    <message>
        <source>al posto del giorno %1 c&apos;è la data %2, che è di un altro: le ricerche lo conterebbero lì; diventa %3</source>
        <translation>in the place of day %1 stands the date %2, which is another day&apos;s: the searches would count it there; becomes %3</translation>
    </message>
    <message>
        <source>il file finisce prima; giorni interi che mancano: %1. Il programma si fermerebbe con l&apos;errore 62 e al salvataggio li scriverebbe come li ha in memoria; tornano vuoti</source>
        <translation>the file ends early; whole days missing: %1. The program would stop with error 62 and on saving write them as it has them in memory; they come back blank</translation>
    </message>
    <message>
        <source>il file finisce prima, in mezzo al giorno; giorni interi che mancano: %1. Il programma si fermerebbe con l&apos;errore 62 e al salvataggio li scriverebbe come li ha in memoria; tornano vuoti</source>
        <translation>the file ends early, in the middle of a day; whole days missing: %1. The program would stop with error 62 and on saving write them as it has them in memory; they come back blank</translation>
    </message>
    <message>
        <source>righe in più dopo l&apos;ultimo giorno: %1; il programma non le legge e al salvataggio le perde; vengono tolte</source>
        <translation>lines too many after the last day: %1; the program doesn&apos;t read them and loses them on saving; are removed</translation>
    </message>
    <message>
        <source>righe in più prima del primo giorno: %1; il programma si fermerebbe qui; vengono tolte</source>
        <translation>lines too many before the first day: %1; the program would stop here; are removed</translation>
    </message>
    <message>
        <source>il giorno %1 c&apos;è due volte, uguale: il programma leggerebbe ogni giorno che segue al posto di un altro; il secondo viene tolto</source>
        <translation>day %1 is there twice, alike: the program would read every day that follows in the place of another; the second is removed</translation>
    </message>
    <message>
        <source>il giorno %1 c&apos;è due volte, diverso o fuori posto: il programma leggerebbe ogni giorno che segue al posto di un altro</source>
        <translation>day %1 is there twice, different or out of place: the program would read every day that follows in the place of another</translation>
    </message>
    <message>
        <source>prima di questa riga mancano giorni: %1; il programma leggerebbe ogni giorno che segue al posto di un altro; tornano vuoti</source>
        <translation>days missing before this line: %1; the program would read every day that follows in the place of another; they come back blank</translation>
    </message>
    <message>
        <source>al giorno mancano righe: %1; da lì in poi il programma leggerebbe ogni valore al posto di un altro; le righe tornano dove sembrano stare</source>
        <translation>lines missing in the day: %1; from there on the program would read every value in the place of another; the lines go back to where they seem to belong</translation>
    </message>
    <message>
        <source>righe vuote nel giorno: %1; il programma le prenderebbe per valori; vengono tolte</source>
        <translation>empty lines in the day: %1; the program would take them for values; are removed</translation>
    </message>
    <message>
        <source>nel giorno ci sono righe in più: %1; da lì in poi il programma leggerebbe ogni valore al posto di un altro; le righe tornano dove sembrano stare</source>
        <translation>lines too many in the day: %1; from there on the program would read every value in the place of another; the lines go back to where they seem to belong</translation>
    </message>
    <message>
        <source>il file manca, e il programma non troverebbe alcun diario; torna con «&quot;&quot;», che vuol dire «prova»</source>
        <translation>the file is missing, and the program would find no diary; becomes “&quot;&quot;”, which means “prova”</translation>
    </message>
    <message>
        <source>il programma non lo legge: «%1»; va deciso a mano</source>
        <translation>the program can&apos;t read it: “%1”; to be decided by hand</translation>
    </message>
    <message>
        <source>il file manca, e il programma lo direbbe con un errore; torna come in un diario nuovo</source>
        <translation>the file is missing, and the program would say so with an error; becomes that of a new diary</translation>
    </message>
    <message>
        <source>il file è vuoto, e il programma lo direbbe con un errore; diventa «&quot;&quot;»</source>
        <translation>the file is empty, and the program would say so with an error; becomes “&quot;&quot;”</translation>
    </message>
    <message>
        <source>«%1» non c&apos;è: diventa «%2»</source>
        <translation>“%1” is not there: becomes “%2”</translation>
    </message>
    <message>
        <source>«%1» non c&apos;è, e il programma non lo troverebbe; diventa «&quot;&quot;»</source>
        <translation>“%1” is not there, and the program would not find it; becomes “&quot;&quot;”</translation>
    </message>
    <message>
        <source>il diario «%1» non si può scrivere («%2»)</source>
        <translation>the diary “%1” can&apos;t be written (“%2”)</translation>
    </message>
    <message>
        <source>Righe dei Tempi Km che non dicono chilometro e tempo, e restano fuori: %1.</source>
        <translation>Lines of the Tempi Km that give no kilometre with a time, and are left out: %1.</translation>
    </message>
    <message>
        <source>%1 non si legge per intero («%2»).</source>
        <translation>%1 can&apos;t be read as a whole (“%2”).</translation>
    </message>
    <message>
        <source>Il calendario delle gare</source>
        <translation>The calendar of races</translation>
    </message>
    <message>
        <source>Il nome della tabella attiva</source>
        <translation>The name of the active training table</translation>
    </message>
    <message>
        <source>La tabella attiva</source>
        <translation>The active training table</translation>
    </message>
    <message>
        <source>«%1» non è un formato: csv, splits, jsonl o ics.</source>
        <translation>“%1” is not a format: csv, splits, jsonl or ics.</translation>
    </message>
    <message>
        <source>«%1» è un collegamento, che non viene seguito: al suo posto ci vuole il file o la cartella</source>
        <translation>“%1” is a link, which is not followed: the file or the folder has to stand in its place</translation>
    </message>
    <message>
        <source>risultato di categoria</source>
        <translation>result in category</translation>
    </message>
    <message>
        <source>media, minuti</source>
        <translation>average, minutes</translation>
    </message>
    <message>
        <source>media, secondi</source>
        <translation>average, seconds</translation>
    </message>
    <message>
        <source>media, millesimi</source>
        <translation>average, thousandths</translation>
    </message>
    <message>
        <source>andatura</source>
        <translation>pace</translation>
    </message>
    <message>
        <source>terreno</source>
        <translation>terrain</translation>
    </message>
    <message>
        <source>ripetizioni</source>
        <translation>repetitions</translation>
    </message>
    <message>
        <source>ripetizioni, metri</source>
        <translation>repetitions, metres</translation>
    </message>
    <message>
        <source>ripetizioni, minuti</source>
        <translation>repetitions, minutes</translation>
    </message>
    <message>
        <source>ripetizioni, secondi</source>
        <translation>repetitions, seconds</translation>
    </message>
    <message>
        <source>data d&apos;inizio</source>
        <translation>start date</translation>
    </message>
    <message>
        <source>riga %1, %2</source>
        <translation>row %1, %2</translation>
    </message>
    <message>
        <source>percorso %1, nome</source>
        <translation>route %1, name</translation>
    </message>
    <message>
        <source>percorso %1, distanza</source>
        <translation>route %1, distance</translation>
    </message>
    <message>
        <source>percorso %1, tratto %2, descrizione</source>
        <translation>route %1, stretch %2, description</translation>
    </message>
    <message>
        <source>percorso %1, tratto %2, km</source>
        <translation>route %1, stretch %2, km</translation>
    </message>
    <message>
        <source>percorso %1, tratto %2, metri</source>
        <translation>route %1, stretch %2, metres</translation>
    </message>
    <message>
        <source>righe in più in fondo: %1; il programma non le legge e al salvataggio le perde; vengono tolte</source>
        <translation>lines too many at the end: %1; the program doesn&apos;t read them and loses them on saving; are removed</translation>
    </message>
    <message>
        <source>righe in più: %1; da qui in poi il programma leggerebbe ogni valore al posto di un altro; le righe tornano dove sembrano stare</source>
        <translation>lines too many: %1; from here on the program would read every value in the place of another; the lines go back to where they seem to belong</translation>
    </message>
    <message>
        <source>righe che mancano: %1; da qui in poi il programma leggerebbe ogni valore al posto di un altro; le righe tornano dove sembrano stare</source>
        <translation>lines missing: %1; from here on the program would read every value in the place of another; the lines go back to where they seem to belong</translation>
    </message>
    <message>
        <source>il file finisce prima: mancano %1 righe, e il programma lo direbbe con un errore; tornano vuote</source>
        <translation>the file ends early: %1 lines are missing, and the program would say so with an error; they come back blank</translation>
    </message>
    <message>
        <source>questa data non esiste: il programma non mostra la gara in nessun giorno</source>
        <translation>there is no such date: the program shows the race on no day</translation>
    </message>
    <message>
        <source>una gara di questo giorno sta già nella riga %1: il programma mostra soltanto quella</source>
        <translation>a race of this day is in row %1 already: the program shows only that one</translation>
    </message>
    <message>
        <source>voce %1</source>
        <translation>entry %1</translation>
    </message>
    <message>
        <source>una riga vuota, che il programma prenderebbe per una voce; viene tolta</source>
        <translation>an empty line, which the program would take for an entry; is removed</translation>
    </message>
    <message>
        <source>«%1» non è una differenza da UTC come +2 o -3:30.</source>
        <translation>“%1” is not an offset from UTC such as +2 or -3:30.</translation>
    </message>
    <message>
        <source>«%1» non dice TESTATA=NOME, con il NOME di una colonna come «km».</source>
        <translation>“%1” is not HEAD=NAME, with the NAME of a column such as “km”.</translation>
    </message>
    <message>
        <source>Letti %1 file su %2.</source>
        <translation>Read %1 files of %2.</translation>
    </message>
    <message>
        <source>Scrivere nel diario?</source>
        <translation>Write to the diary?</translation>
    </message>
    <message>
        <source>Fatto. %1</source>
        <translation>Done. %1</translation>
    </message>
    <message>
        <source>nelle cartelle indicate non ci sono file FIT, TCX o GPX</source>
        <translation>the folders named hold no FIT, TCX or GPX files</translation>
    </message>
    <message>
        <source>è un&apos;altra uscita dello stesso giorno, e nel diario ne sta una</source>
        <translation>is another run of the same day, and the diary holds one</translation>
    </message>
    <message>
        <source>è già nel giorno %1</source>
        <translation>is on the day %1 already</translation>
    </message>
    <message>
        <source>Non si è potuto annotare che cosa è stato importato: %1.</source>
        <translation>What was imported could not be noted: %1.</translation>
    </message>
    <message>
        <source>non è un file</source>
        <translation>is not a file</translation>
    </message>
    <message>
        <source>il file è troppo grande</source>
        <translation>the file is too large</translation>
    </message>
    <message>
        <source>il file è vuoto</source>
        <translation>the file is empty</translation>
    </message>
    <message>
        <source>l&apos;orologio segnava il %1, forse sbagliando</source>
        <translation>the watch said %1, maybe wrongly</translation>
    </message>
    <message>
        <source>non contiene attività</source>
        <translation>holds no activities</translation>
    </message>
    <message>
        <source>%1; vale ciò che si è potuto leggere</source>
        <translation>%1; what could be read counts</translation>
    </message>
    <message>
        <source>le note non ci stanno tutte</source>
        <translation>the notes don&apos;t all fit</translation>
    </message>
    <message>
        <source>in un giorno stanno cento tempi al chilometro</source>
        <translation>a day holds a hundred kilometre times</translation>
    </message>
    <message>
        <source>la tabella è vuota</source>
        <translation>the table is empty</translation>
    </message>
    <message>
        <source>nella prima riga deve esserci una colonna «date»</source>
        <translation>the first row must have a column “date”</translation>
    </message>
    <message>
        <source>la tabella non ha righe sotto la prima</source>
        <translation>the table has no rows below the first</translation>
    </message>
    <message>
        <source>non è un file FIT, TCX, GPX o CSV</source>
        <translation>is not a FIT, TCX, GPX or CSV file</translation>
    </message>
    <message>
        <source>nuovo</source>
        <translation>new</translation>
    </message>
    <message>
        <source>Lasciati: %1.</source>
        <translation>Left out: %1.</translation>
    </message>
    <message>
        <source>c&apos;è già</source>
        <translation>there already</translation>
    </message>
    <message>
        <source>C&apos;erano già: %1.</source>
        <translation>There already: %1.</translation>
    </message>
    <message>
        <source>c&apos;è altro</source>
        <translation>day in use</translation>
    </message>
    <message>
        <source>C&apos;è altro: %1.</source>
        <translation>Day in use: %1.</translation>
    </message>
    <message>
        <source>non è una corsa</source>
        <translation>not a run</translation>
    </message>
    <message>
        <source>Non sono corse: %1.</source>
        <translation>Not runs: %1.</translation>
    </message>
    <message>
        <source>non si legge</source>
        <translation>unreadable</translation>
    </message>
    <message>
        <source>Non si leggono: %1.</source>
        <translation>Unreadable: %1.</translation>
    </message>
    <message>
        <source>della tabella</source>
        <translation>from the table</translation>
    </message>
    <message>
        <source>dell&apos;orologio</source>
        <translation>from the watch</translation>
    </message>
    <message>
        <source>del computer</source>
        <translation>from the computer</translation>
    </message>
    <message>
        <source>indicata</source>
        <translation>as given</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>N.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Giorno</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Inizio</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Ora</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Km</source>
        <translation>Km</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>In moto</source>
        <translation>Moving</translation>
    </message>
    <message>
        <source>Percorso</source>
        <translation>Route</translation>
    </message>
    <message>
        <source>Esito</source>
        <translation>Outcome</translation>
    </message>
    <message>
        <source>Nel diario</source>
        <translation>In the diary</translation>
    </message>
    <message>
        <source>Scritti: %1.</source>
        <translation>Written: %1.</translation>
    </message>
    <message>
        <source>la colonna «%1» non si conosce e non viene letta; --colonna «%1=NOME» dice che cos&apos;è</source>
        <translation>the column “%1” is not known and is not read; --colonna “%1=NAME” says what it is</translation>
    </message>
    <message>
        <source>L&apos;ora di %1 attività è quella dell&apos;orologio, scritta nel file.</source>
        <translation>The hour of %1 activities is that of the watch, written in the file.</translation>
    </message>
    <message>
        <source>L&apos;ora di %1 attività è quella del computer in quel momento, perché il file dice solo l&apos;ora UTC.</source>
        <translation>The hour of %1 activities is that of the computer at that moment, as the file gives only the time in UTC.</translation>
    </message>
    <message>
        <source>L&apos;ora di %1 attività è quella indicata con --fuso.</source>
        <translation>The hour of %1 activities is the one given with --fuso.</translation>
    </message>
    <message>
        <source>Ci sono pause in %1 attività: di solito il tempo le comprende, con --in-moto no.</source>
        <translation>There are pauses in %1 activities: the time usually includes them, with --in-moto it doesn&apos;t.</translation>
    </message>
    <message>
        <source>Non c&apos;è niente da scrivere.</source>
        <translation>There is nothing to write.</translation>
    </message>
    <message>
        <source>Da scrivere: 1 giorno (%1).</source>
        <translation>To be written: 1 day (%1).</translation>
    </message>
    <message>
        <source>Da scrivere: %1 giorni (%2).</source>
        <translation>To be written: %1 days (%2).</translation>
    </message>
    <message>
        <source>Diario nuovo: %1.</source>
        <translation>New diary: %1.</translation>
    </message>
    <message>
        <source>Diari nuovi: %1.</source>
        <translation>New diaries: %1.</translation>
    </message>
    <message>
        <source>In 1 giorno il diario ha già altro, che resta com&apos;è; --sovrascrivi lo sostituisce.</source>
        <translation>On 1 day the diary holds something else, which stays; --sovrascrivi replaces it.</translation>
    </message>
    <message>
        <source>In %1 giorni il diario ha già altro, che resta com&apos;è; --sovrascrivi lo sostituisce.</source>
        <translation>On %1 days the diary holds something else, which stays; --sovrascrivi replaces it.</translation>
    </message>
    <message>
        <source>«%1» non è una data come 2026-05-20 o 20/05/2026, né «liste», «percorsi» o «calendario».</source>
        <translation>“%1” is not a date such as 2026-05-20 or 20/05/2026, nor “liste”, “percorsi” or “calendario”.</translation>
    </message>
    <message>
        <source>il giornale è aperto: chiudere il diario e riprovare</source>
        <translation>the journal is open: close the diary and try again</translation>
    </message>
    <message>
        <source>Del giornale 1 riga è rovinata e non conta.</source>
        <translation>1 line of the journal is damaged and doesn&apos;t count.</translation>
    </message>
    <message>
        <source>Del giornale %1 righe sono rovinate e non contano.</source>
        <translation>%1 lines of the journal are damaged and don&apos;t count.</translation>
    </message>
    <message>
        <source>Campo</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>Non salvato</source>
        <translation>Not saved</translation>
    </message>
    <message>
        <source>il diario non c&apos;è più, o non è in questa cartella.</source>
        <translation>the diary is gone, or not in this folder.</translation>
    </message>
    <message>
        <source>nel file c&apos;è ormai altro, che resta com&apos;è; --sovrascrivi lo sostituisce.</source>
        <translation>the file holds something else by now, which stays; --sovrascrivi replaces it.</translation>
    </message>
    <message>
        <source>nel giornale non c&apos;è niente di «%1»</source>
        <translation>the journal holds nothing of “%1”</translation>
    </message>
    <message>
        <source>nel diario «%1» non si può riportare tutto («%2»)</source>
        <translation>not everything can be brought back into the diary “%1” (“%2”)</translation>
    </message>
    <message>
        <source>«%1» non si legge: «zelvia-strumenti controlla» dice dove</source>
        <translation>“%1” can&apos;t be read: “zelvia-strumenti controlla” says where</translation>
    </message>
    <message>
        <source>Non si è potuto aggiornare il giornale.</source>
        <translation>The journal could not be updated.</translation>
    </message>
    <message>
        <source>Non c&apos;è niente da riportare.</source>
        <translation>There is nothing to bring back.</translation>
    </message>
    <message>
        <source>Riportare nel diario?</source>
        <translation>Bring back into the diary?</translation>
    </message>
    <message>
        <source>Fatto.</source>
        <translation>Done.</translation>
    </message>
    <message>
        <source>Il giornale è vuoto.</source>
        <translation>The journal is empty.</translation>
    </message>
    <message>
        <source>Dimenticare tutto questo?</source>
        <translation>Forget all this?</translation>
    </message>
    <message>
        <source>Tutto è stato salvato.</source>
        <translation>Everything was saved.</translation>
    </message>
    <message>
        <source>«giornale» va da solo, con «riprendi [DATA ...]» o con «dimentica».</source>
        <translation>“giornale” stands alone, with “riprendi [DATE ...]” or with “dimentica”.</translation>
    </message>
    <message>
        <source>voce</source>
        <translation>entry</translation>
    </message>
    <message>
        <source>gara del %1/%2/%3</source>
        <translation>race of %1/%2/%3</translation>
    </message>
    <message>
        <source>tutta la tabella</source>
        <translation>the whole table</translation>
    </message>
    <message>
        <source>«%1» resta com&apos;è: %2.</source>
        <translation>“%1” stays as it is: %2.</translation>
    </message>
    <message>
        <source>è rovinato (%1)</source>
        <translation>it is damaged (%1)</translation>
    </message>
    <message>
        <source>prima va riparato «%1» (%2)</source>
        <translation>“%1” has to be repaired first (%2)</translation>
    </message>
    <message>
        <source>è del %1, e «%2» del %3</source>
        <translation>it is of %1, and “%2” of %3</translation>
    </message>
    <message>
        <source>%1: c&apos;è soltanto di là</source>
        <translation>%1: only there</translation>
    </message>
    <message>
        <source>  %1: cambiato di là</source>
        <translation>  %1: changed there</translation>
    </message>
    <message>
        <source>  nessuna differenza</source>
        <translation>  no difference</translation>
    </message>
    <message>
        <source>  cambiati soltanto qui, restano: %1</source>
        <translation>  changed only here, kept: %1</translation>
    </message>
    <message>
        <source>    %1: prima %2, qui %3, di là %4</source>
        <translation>    %1: %2 before, %3 here, %4 there</translation>
    </message>
    <message>
        <source>  %1: cambiato qui e di là</source>
        <translation>  %1: changed here and there</translation>
    </message>
    <message>
        <source>  Prendere quello di là?</source>
        <translation>  Take the one from there?</translation>
    </message>
    <message>
        <source>In «%1» non c&apos;è più posto per «%2», che resta di là.</source>
        <translation>“%1” has no room left for “%2”, which stays there.</translation>
    </message>
    <message>
        <source>Da prendere: %1. Restano da decidere: %2.</source>
        <translation>To be taken: %1. Left to decide: %2.</translation>
    </message>
    <message>
        <source>Non c&apos;è niente da unire.</source>
        <translation>There is nothing to merge.</translation>
    </message>
    <message>
        <source>Unire?</source>
        <translation>Merge?</translation>
    </message>
    <message>
        <source>Fatto. I file in conflitto sono nell&apos;ultima copia di sicurezza.</source>
        <translation>Done. The conflicting files are in the latest safety copy.</translation>
    </message>
    <message>
        <source>«%1» è il diario che si apre all&apos;avvio, e resta com&apos;è.</source>
        <translation>“%1” is the diary that opens at the start, and stays as it is.</translation>
    </message>
    <message>
        <source>«%1» è la cartella stessa</source>
        <translation>“%1” is the folder itself</translation>
    </message>
    <message>
        <source>il diario di «%1» è aperto: chiuderlo e riprovare</source>
        <translation>the diary of “%1” is open: close it and try again</translation>
    </message>
    <message>
        <source>in «%1» non ci sono diari di Zelvia</source>
        <translation>there are no diaries of Zelvia in “%1”</translation>
    </message>
    <message>
        <source>«%1» non c&apos;è</source>
        <translation>“%1” is not there</translation>
    </message>
    <message>
        <source>«%1» non è un diario («.zlv») né una cartella</source>
        <translation>“%1” is neither a diary (“.zlv”) nor a folder</translation>
    </message>
    <message>
        <source>«%1» è il diario stesso</source>
        <translation>“%1” is the diary itself</translation>
    </message>
    <message>
        <source>riga %1: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message>
        <source>non ha le righe che dovrebbe avere</source>
        <translation>doesn&apos;t have the lines that it should have</translation>
    </message>
    <message>
        <source>«%1» non è un anno dal %2 al %3.</source>
        <translation>“%1” is not a year from %2 to %3.</translation>
    </message>
    <message>
        <source>il diario %1 c&apos;è già («%2») e resta com&apos;è</source>
        <translation>the diary %1 exists already (“%2”) and stays as it is</translation>
    </message>
    <message>
        <source>il programma non trova i diari di «%1»: nel percorso c&apos;è un punto o la parola «ZelviaFile». Spostare la cartella</source>
        <translation>the program doesn&apos;t find the diaries of “%1”: the path has a full stop or the word “ZelviaFile”. Move the folder</translation>
    </message>
    <message>
        <source>Diario nuovo: %1, con i giorni vuoti del %2 e la cartella «%1».</source>
        <translation>New diary: %1, with the blank days of %2 and the folder “%1”.</translation>
    </message>
    <message>
        <source>Dal diario «%1»:</source>
        <translation>From the diary “%1”:</translation>
    </message>
    <message>
        <source>Il calendario delle gare è vuoto.</source>
        <translation>The calendar of races is empty.</translation>
    </message>
    <message>
        <source>All&apos;avvio si aprirà il diario %1.</source>
        <translation>The diary %1 will open at the start.</translation>
    </message>
    <message>
        <source>il diario %1 non si può scrivere («%2»)</source>
        <translation>the diary %1 can&apos;t be written (“%2”)</translation>
    </message>
    <message>
        <source>Preparare il diario?</source>
        <translation>Prepare the diary?</translation>
    </message>
    <message>
        <source>Il diario %1 è pronto: Zelvia lo apre al prossimo avvio.</source>
        <translation>The diary %1 is ready: Zelvia opens it at the next start.</translation>
    </message>
    <message>
        <source>«%1» non è un giorno, AAAA-MM-GG.</source>
        <translation>“%1” is not a day, YYYY-MM-DD.</translation>
    </message>
    <message>
        <source>il diario «%1» della copia non si legge per intero («%2»)</source>
        <translation>the diary “%1” of the copy can&apos;t be read as a whole (“%2”)</translation>
    </message>
    <message>
        <source>nella copia %1 il diario «%2» non c&apos;è</source>
        <translation>there is no diary “%2” in copy %1</translation>
    </message>
    <message>
        <source>nella copia %1 non c&apos;è nessun diario</source>
        <translation>there is no diary in copy %1</translation>
    </message>
    <message>
        <source>nella copia il giorno %1 non c&apos;è</source>
        <translation>there is no day %1 in the copy</translation>
    </message>
    <message>
        <source>nella copia il giorno %1 è in più di un diario: indicare quale con --diario NOME</source>
        <translation>the day %1 is in more than one diary of the copy: name one with --diario NAME</translation>
    </message>
    <message>
        <source>nel diario «%1» il giorno %2 non è al suo posto: «zelvia-strumenti controlla» dice dove</source>
        <translation>in the diary “%1” the day %2 is not in its place: “zelvia-strumenti controlla” says where</translation>
    </message>
    <message>
        <source>Adesso</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>Nella copia</source>
        <translation>In the copy</translation>
    </message>
    <message>
        <source>Questi giorni sono già come nella copia.</source>
        <translation>These days are as in the copy already.</translation>
    </message>
    <message>
        <source>Rimettere questi giorni?</source>
        <translation>Put these days back?</translation>
    </message>
    <message>
        <source>Rimessi: %1. I giorni di prima sono nell&apos;ultima copia di sicurezza.</source>
        <translation>Put back: %1. The former days are in the latest safety copy.</translation>
    </message>
    <message>
        <source>Il diario «%1» è già come nella copia.</source>
        <translation>The diary “%1” is as in the copy already.</translation>
    </message>
    <message>
        <source>Il diario «%1» torna come nella copia %2:</source>
        <translation>The diary “%1” becomes as in copy %2:</translation>
    </message>
    <message>
        <source>Rimettere il diario?</source>
        <translation>Put the diary back?</translation>
    </message>
    <message>
        <source>Rimesso il diario «%1». I file di prima sono nell&apos;ultima copia di sicurezza.</source>
        <translation>Put the diary “%1” back. The former files are in the latest safety copy.</translation>
    </message>
    <message>
        <source>O --giorno o --intero.</source>
        <translation>Either --giorno or --intero.</translation>
    </message>
    <message>
        <source>%1; va deciso a mano</source>
        <translation>%1; to be decided by hand</translation>
    </message>
    <message>
        <source>il file comincia con il segno di un&apos;altra codifica, che il programma prenderebbe per un valore; diventa Windows-1252</source>
        <translation>the file starts with the mark of another encoding, which the program would take for a value; becomes Windows-1252</translation>
    </message>
    <message>
        <source>byte vuoti in fondo al file, come li lascia un&apos;interruzione: %1; vengono tolti</source>
        <translation>null bytes at the end of the file, as an interruption leaves them: %1; are removed</translation>
    </message>
    <message>
        <source>righe che non finiscono con CR LF: %1, questa è la prima; il programma le scrive con CR LF, e così tornano</source>
        <translation>lines that don&apos;t end with CR LF: %1, this is the first; the program writes them with CR LF, and so they become</translation>
    </message>
    <message>
        <source>l&apos;ultima riga non finisce con CR LF; le viene aggiunto</source>
        <translation>the last line doesn&apos;t end with CR LF; it is added</translation>
    </message>
    <message>
        <source>%1 è scritto in UTF-8: il programma ne mostrerebbe male gli accenti; diventa Windows-1252</source>
        <translation>%1 is written in UTF-8: the program would show its accents wrongly; becomes Windows-1252</translation>
    </message>
    <message>
        <source>%1 sembra scritto in UTF-8, il resto del file no: il programma ne mostrerebbe male gli accenti; diventa Windows-1252</source>
        <translation>%1 seems to be written in UTF-8, unlike the rest of the file: the program would show its accents wrongly; becomes Windows-1252</translation>
    </message>
    <message>
        <source>%1 è scritto in UTF-8 e ha caratteri che il diario non può contenere; diventano «?»</source>
        <translation>%1 is written in UTF-8 and has characters that the diary can&apos;t hold; they become “?”</translation>
    </message>
    <message>
        <source>virgolette nel testo %1: il programma finirebbe lì il testo, leggerebbe male ciò che segue e lo perderebbe al salvataggio; diventano tipografiche</source>
        <translation>quotation marks in the text %1: the program would end the text there, misread what follows and lose it on saving; they become typographic</translation>
    </message>
    <message>
        <source>a %1 mancano le virgolette che chiudono un testo: il programma leggerebbe male ciò che segue; vengono aggiunte</source>
        <translation>%1 lacks the quotation marks that close a text: the program would misread what follows; they are added</translation>
    </message>
    <message>
        <source>in %1 ci sono caratteri di controllo, che il programma non mostra; diventano spazi</source>
        <translation>%1 has control characters, which the program doesn&apos;t show; they become blanks</translation>
    </message>
    <message>
        <source>%1 è fuori dai limiti, %2 e %3: il programma si fermerebbe qui e al salvataggio perderebbe il resto; diventa %4</source>
        <translation>%1 is out of range, %2 to %3: the program would stop here and lose the rest on saving; becomes %4</translation>
    </message>
    <message>
        <source>%1 è fuori dai limiti, %2 e %3: il programma lo prende com&apos;è; diventa %4</source>
        <translation>%1 is out of range, %2 to %3: the program takes it as it is; becomes %4</translation>
    </message>
    <message>
        <source>%1 non è un numero: il programma si fermerebbe qui e al salvataggio perderebbe il resto; diventa %2</source>
        <translation>%1 is not a number: the program would stop here and lose the rest on saving; becomes %2</translation>
    </message>
    <message>
        <source>%1 non è una data: il programma si fermerebbe qui e al salvataggio perderebbe il resto; diventa %2</source>
        <translation>%1 is not a date: the program would stop here and lose the rest on saving; becomes %2</translation>
    </message>
    <message>
        <source>Diario</source>
        <translation>Diary</translation>
    </message>
    <message>
        <source>Anno</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Uscite</source>
        <translation>Runs</translation>
    </message>
    <message>
        <source>Gare</source>
        <translation>Races</translation>
    </message>
    <message>
        <source>La finestra degli strumenti ha bisogno di uno schermo. Senza, indicare un&apos;AZIONE: «zelvia-strumenti --help» le mostra.</source>
        <translation>The window of the tools needs a display. Without one name an ACTION: “zelvia-strumenti --help” lists them.</translation>
    </message>
    <message>
        <source>La finestra degli strumenti non si apre («%1»: %2).</source>
        <translation>The window of the tools doesn&apos;t open (“%1”: %2).</translation>
    </message>
    <message>
        <source>pagina %1 di %2</source>
        <translation>page %1 of %2</translation>
    </message>
    <message>
        <source>dura più di un giorno: gli orari non si possono scrivere</source>
        <translation>lasts more than a day: its times can&apos;t be written</translation>
    </message>
    <message>
        <source>va oltre l&apos;una di notte: l&apos;inizio è anticipato perché il tempo sia giusto</source>
        <translation>goes on after one at night: the start is earlier so that the time is right</translation>
    </message>
    <message>
        <source>la distanza è più di quanto il diario può tenere</source>
        <translation>the distance is more than the diary can hold</translation>
    </message>
    <message>
        <source>il file è troncato</source>
        <translation>the file is cut off</translation>
    </message>
    <message>
        <source>la somma di controllo è sbagliata</source>
        <translation>the checksum is wrong</translation>
    </message>
    <message>
        <source>il resto del file non si può leggere</source>
        <translation>the rest of the file can&apos;t be read</translation>
    </message>
    <message>
        <source>il file è rovinato</source>
        <translation>the file is damaged</translation>
    </message>
    <message>
        <source>il file è rovinato alla riga %1</source>
        <translation>the file is damaged at line %1</translation>
    </message>
    <message>
        <source>è dell&apos;anno %1 come il diario «%2», che vale</source>
        <translation>is of the year %1 like the diary “%2”, which counts</translation>
    </message>
    <message>
        <source>è in conflitto con «%1»: «Due computer», negli strumenti, li unisce</source>
        <translation>is in conflict with “%1”: “Two computers” in the tools merges them</translation>
    </message>
    <message>
        <source>non si legge per intero («%1»)</source>
        <translation>can&apos;t be read as a whole (“%1”)</translation>
    </message>
    <message>
        <source>Il calendario delle gare non si legge per intero</source>
        <translation>The calendar of races can&apos;t be read as a whole</translation>
    </message>
    <message>
        <source>Le descrizioni dei percorsi non si leggono per intero</source>
        <translation>The descriptions of the routes can&apos;t be read as a whole</translation>
    </message>
    <message>
        <source>I tempi di «%1» non si leggono per intero</source>
        <translation>The times of “%1” can&apos;t be read as a whole</translation>
    </message>
    <message>
        <source>La statistica «%1» non si può fare</source>
        <translation>The statistic “%1” can&apos;t be made</translation>
    </message>
    <message>
        <source>La tabella «%1» non si legge per intero</source>
        <translation>The training table “%1” can&apos;t be read as a whole</translation>
    </message>
    <message>
        <source>pagina %1 su %2</source>
        <translation>page %1 of %2</translation>
    </message>
    <message>
        <source>il diario è cambiato nel frattempo: niente è stato scritto, guardare di nuovo</source>
        <translation>the diary has changed in the meantime: nothing was written, look again</translation>
    </message>
    <message>
        <source>La copia non è anche nel secondo posto: %1.
Quelle di sempre ci sono tutte; riprovare quando sarà possibile.</source>
        <translation>The copy is not in the second place as well: %1.
The usual ones are all there; try again when it is possible.</translation>
    </message>
    <message>
        <source>«%1» è un collegamento, che non viene seguito: al suo posto ci vuole il file.</source>
        <translation>“%1” is a link, which is not followed: the file itself is needed in its place.</translation>
    </message>
    <message>
        <source>non c&apos;è</source>
        <translation>it is not there</translation>
    </message>
    <message>
        <source>«%1» è un file del diario: indicarne un altro</source>
        <translation>“%1” is a file of the diary: name another one</translation>
    </message>
    <message>
        <source>Attenzione: %1.</source>
        <translation>Warning: %1.</translation>
    </message>
</context>
<context>
    <name>YearsFigures</name>
    <message>
        <source>Settimana</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>Mese</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Chilometri per anno</source>
        <translation>Kilometres per year</translation>
    </message>
    <message>
        <source>Chilometri</source>
        <translation>Kilometres</translation>
    </message>
    <message>
        <source>Anno</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Km</source>
        <translation>Km</translation>
    </message>
    <message>
        <source>Uscite</source>
        <translation>Runs</translation>
    </message>
    <message>
        <source>Gare</source>
        <translation>Races</translation>
    </message>
    <message>
        <source>Chilometri dall&apos;inizio dell&apos;anno, %1</source>
        <translation>Kilometres since the start of the year, %1</translation>
    </message>
    <message>
        <source>Giorno</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Linea costante</source>
        <translation>Steady line</translation>
    </message>
    <message>
        <source>Km %1</source>
        <translation>Km %1</translation>
    </message>
    <message>
        <source>Carico di 7 e di 42 giorni, %1</source>
        <translation>Load of 7 and of 42 days, %1</translation>
    </message>
    <message>
        <source>7 giorni, km</source>
        <translation>7 days, km</translation>
    </message>
    <message>
        <source>42 giorni, km a settimana</source>
        <translation>42 days, km per week</translation>
    </message>
    <message>
        <source>7 giorni</source>
        <translation>7 days</translation>
    </message>
    <message>
        <source>42 giorni, a settimana</source>
        <translation>42 days, per week</translation>
    </message>
    <message>
        <source>Settimana %1, dal %2 al %3</source>
        <translation>Week %1, from %2 to %3</translation>
    </message>
    <message>
        <source>%1: %2 km, %3</source>
        <translation>%1: %2 km, %3</translation>
    </message>
    <message>
        <source>Chilometri per settimana, %1</source>
        <translation>Kilometres per week, %1</translation>
    </message>
    <message>
        <source>Chilometri per mese, %1</source>
        <translation>Kilometres per month, %1</translation>
    </message>
    <message>
        <source>Dal</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Al</source>
        <translation>To</translation>
    </message>
    <message>
        <source>%1: %2 km dall&apos;inizio dell&apos;anno</source>
        <translation>%1: %2 km since the start of the year</translation>
    </message>
    <message>
        <source>%1: la linea costante è a %2 km</source>
        <translation>%1: the steady line is at %2 km</translation>
    </message>
    <message>
        <source>%1: %2 km negli ultimi 7 giorni</source>
        <translation>%1: %2 km in the last 7 days</translation>
    </message>
    <message>
        <source>%1: %2 km a settimana negli ultimi 42 giorni</source>
        <translation>%1: %2 km per week in the last 42 days</translation>
    </message>
    <message>
        <source>tutti gli anni</source>
        <translation>all years</translation>
    </message>
    <message>
        <source>Andatura per anno, %1</source>
        <translation>Pace by year, %1</translation>
    </message>
    <message>
        <source>Andatura per percorso e anno</source>
        <translation>Pace by route and year</translation>
    </message>
    <message>
        <source>Percorso</source>
        <translation>Route</translation>
    </message>
    <message>
        <source>Media al km</source>
        <translation>Pace per km</translation>
    </message>
    <message>
        <source>%1, %2: %3 al km, %4</source>
        <translation>%1, %2: %3 per km, %4</translation>
    </message>
    <message>
        <source>Migliori tempi per distanza, %1</source>
        <translation>Best times by distance, %1</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 km, %2</source>
        <translation>%1 km, %2</translation>
    </message>
    <message>
        <source>Migliori tempi per percorso, %1</source>
        <translation>Best times by route, %1</translation>
    </message>
    <message>
        <source>%1, %2 km</source>
        <translation>%1, %2 km</translation>
    </message>
    <message>
        <source>%1: %2, %3 al km, il %4</source>
        <translation>%1: %2, %3 per km, on %4</translation>
    </message>
    <message>
        <source>Peso, media del mese, tutti gli anni</source>
        <translation>Weight, average of the month, all years</translation>
    </message>
    <message>
        <source>Kg</source>
        <translation>Kg</translation>
    </message>
    <message>
        <source>Minimo</source>
        <translation>Lowest</translation>
    </message>
    <message>
        <source>Massimo</source>
        <translation>Highest</translation>
    </message>
    <message>
        <source>Giorni</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>Peso</source>
        <translation>Weight</translation>
    </message>
    <message>
        <source>%1: %2 kg in media, da %3 a %4</source>
        <translation>%1: %2 kg on average, from %3 to %4</translation>
    </message>
    <message>
        <source>Peso, %1</source>
        <translation>Weight, %1</translation>
    </message>
    <message>
        <source>%1: %2 kg</source>
        <translation>%1: %2 kg</translation>
    </message>
    <message>
        <source>Obiettivo di %1 km: fatti %2 km, %3. %4</source>
        <translation>Goal of %1 km: %2 km done, %3. %4</translation>
    </message>
    <message>
        <source>sulla linea costante</source>
        <translation>on the steady line</translation>
    </message>
    <message>
        <source>%1 km avanti sulla linea costante</source>
        <translation>%1 km ahead of the steady line</translation>
    </message>
    <message>
        <source>%1 km indietro sulla linea costante</source>
        <translation>%1 km behind the steady line</translation>
    </message>
    <message>
        <source>È raggiunto.</source>
        <translation>It is reached.</translation>
    </message>
    <message>
        <source>Mancano %1 km</source>
        <translation>%1 km to go</translation>
    </message>
    <message>
        <source>%1, %2 km a settimana fino al 31 dicembre.</source>
        <translation>%1, %2 km per week until 31 December.</translation>
    </message>
    <message>
        <source>Settimane</source>
        <translation>Weeks</translation>
    </message>
    <message>
        <source>Mesi</source>
        <translation>Months</translation>
    </message>
    <message>
        <source>Anni</source>
        <translation>Years</translation>
    </message>
    <message>
        <source>Curva e obiettivo</source>
        <translation>Curve and goal</translation>
    </message>
    <message>
        <source>Andatura</source>
        <translation>Pace</translation>
    </message>
    <message>
        <source>Tempi per distanza</source>
        <translation>Times by distance</translation>
    </message>
    <message>
        <source>Tempi per percorso</source>
        <translation>Times by route</translation>
    </message>
    <message>
        <source>Carico</source>
        <translation>Load</translation>
    </message>
</context>
<context>
    <name>zelvia::ActionPage</name>
    <message>
        <source>&amp;Mostra</source>
        <translation>S&amp;how</translation>
    </message>
    <message>
        <source>&amp;Esegui</source>
        <translation>&amp;Run</translation>
    </message>
    <message>
        <source>Che cosa succede</source>
        <translation>What happens</translation>
    </message>
    <message>
        <source>Legge di nuovo che cosa c&apos;è da fare, senza cambiare niente</source>
        <translation>Reads again what there is to do, and changes nothing</translation>
    </message>
    <message>
        <source>Fa ciò che è scritto qui sopra</source>
        <translation>Does what is written above</translation>
    </message>
    <message>
        <source>&amp;Riprova</source>
        <translation>Tr&amp;y again</translation>
    </message>
    <message>
        <source>Fermato: niente è stato cambiato.</source>
        <translation>Stopped: nothing has been changed.</translation>
    </message>
    <message>
        <source>Fatto.</source>
        <translation>Done.</translation>
    </message>
    <message>
        <source>Nel frattempo è cambiato ciò che c&apos;è da fare: niente è stato fatto. Guardare e premere di nuovo.</source>
        <translation>What there is to do has changed meanwhile: nothing was done. Look and press again.</translation>
    </message>
</context>
<context>
    <name>zelvia::CheckPage</name>
    <message>
        <source>Controlla e ripara</source>
        <translation>Check and mend</translation>
    </message>
    <message>
        <source>Legge ogni file dei diari come li legge Zelvia e dice che cosa non va. Ciò che ha un solo rimedio si ripara con «Esegui»; i file di prima restano in una copia di sicurezza.</source>
        <translation>Reads each file of the diaries as Zelvia reads it, and tells what is wrong. What has only one remedy is mended by “Run”; the files as they were stay in a safety copy.</translation>
    </message>
    <message>
        <source>Difetti</source>
        <translation>Faults</translation>
    </message>
    <message>
        <source>&amp;Riparare anche ciò che ha un rimedio soltanto probabile</source>
        <translation>&amp;Mend also what has a remedy that is only likely</translation>
    </message>
    <message>
        <source>Tutto a posto.</source>
        <translation>All is well.</translation>
    </message>
</context>
<context>
    <name>zelvia::CopiesPage</name>
    <message>
        <source>Copie</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Le copie di sicurezza di questa cartella, l&apos;ultima per prima, e che cosa è cambiato dopo quella scelta. Tornano i giorni spuntati, o tutto il diario; prima si fa una copia di adesso.</source>
        <translation>The safety copies of this folder, the newest first, and what has changed since the one chosen. The days that are ticked come back, or the whole diary; a copy of the present state is taken first.</translation>
    </message>
    <message>
        <source>Che cosa è cambiato dopo la copia</source>
        <translation>What has changed since the copy</translation>
    </message>
    <message>
        <source>&amp;Rimettere i giorni spuntati</source>
        <translation>Put back the &amp;ticked days</translation>
    </message>
    <message>
        <source>Rimettere &amp;tutto il diario scelto in alto</source>
        <translation>Put back the &amp;whole diary chosen above</translation>
    </message>
    <message>
        <source>&amp;Fai una copia adesso</source>
        <translation>Take a copy &amp;now</translation>
    </message>
    <message>
        <source>Non ci sono ancora copie di questa cartella.</source>
        <translation>There are no copies of this folder yet.</translation>
    </message>
    <message>
        <source>c&apos;è</source>
        <translation>there</translation>
    </message>
    <message>
        <source>Dopo la copia %1 non è cambiato niente.</source>
        <translation>Nothing has changed since copy %1.</translation>
    </message>
    <message>
        <source>&amp;Nessun secondo posto</source>
        <translation>&amp;No second place</translation>
    </message>
    <message>
        <source>Secondo &amp;posto…</source>
        <translation>Second &amp;place…</translation>
    </message>
    <message>
        <source>Sceglie un&apos;altra cartella, anche su una chiavetta, in cui vanno anche le copie</source>
        <translation>Chooses another folder, on a stick for instance, which gets the copies too</translation>
    </message>
    <message>
        <source>Le copie non vanno più in un secondo posto; quelle che ci sono restano</source>
        <translation>The copies no longer go to a second place; those that are there stay</translation>
    </message>
    <message>
        <source>Le copie vanno in un posto solo, su questo computer.</source>
        <translation>The copies go to one place only, on this computer.</translation>
    </message>
    <message>
        <source>Le copie vanno anche in «%1».</source>
        <translation>The copies also go to “%1”.</translation>
    </message>
    <message>
        <source>Scegliere il secondo posto delle copie</source>
        <translation>Choose the second place of the copies</translation>
    </message>
</context>
<context>
    <name>zelvia::DeskWindow</name>
    <message>
        <source>&amp;Ferma</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>Strumenti di Zelvia</source>
        <translation>Zelvia tools</translation>
    </message>
    <message>
        <source>Cartella di Zelvia</source>
        <translation>Folder of Zelvia</translation>
    </message>
    <message>
        <source>Diario</source>
        <translation>Diary</translation>
    </message>
    <message>
        <source>Cartella:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>&amp;Cartella…</source>
        <translation>&amp;Folder…</translation>
    </message>
    <message>
        <source>Sceglie un&apos;altra cartella di Zelvia</source>
        <translation>Chooses another folder of Zelvia</translation>
    </message>
    <message>
        <source>D&amp;iario:</source>
        <translation>D&amp;iary:</translation>
    </message>
    <message>
        <source>Strumenti</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Avanzamento</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Ferma la lettura: finché non si scrive niente è possibile</source>
        <translation>Stops reading: possible as long as nothing is written</translation>
    </message>
    <message>
        <source>quello che si apre all&apos;avvio</source>
        <translation>the one that opens at the start</translation>
    </message>
    <message>
        <source>Scegliere la cartella di Zelvia</source>
        <translation>Choose the folder of Zelvia</translation>
    </message>
    <message>
        <source>Sto scrivendo…</source>
        <translation>Writing…</translation>
    </message>
    <message>
        <source>Sto leggendo…</source>
        <translation>Reading…</translation>
    </message>
    <message>
        <source>La finestra si chiude appena è tutto scritto.</source>
        <translation>The window closes as soon as all is written.</translation>
    </message>
</context>
<context>
    <name>zelvia::FigureView</name>
    <message>
        <source>Nessun valore</source>
        <translation>No value</translation>
    </message>
    <message>
        <source>Le frecce leggono i valori, «+» e «-» ingrandiscono</source>
        <translation>The arrows read the values, “+” and “-” zoom</translation>
    </message>
</context>
<context>
    <name>zelvia::FilePage</name>
    <message>
        <source>File da scrivere</source>
        <translation>File to write</translation>
    </message>
    <message>
        <source>Formato</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>&amp;Formato:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>Fi&amp;le:</source>
        <translation>Fi&amp;le:</translation>
    </message>
    <message>
        <source>Scritto «%1».</source>
        <translation>“%1” has been written.</translation>
    </message>
    <message>
        <source>Scegliere il file da scrivere.</source>
        <translation>Choose the file to write.</translation>
    </message>
    <message>
        <source>Il file c&apos;è già: viene sostituito.</source>
        <translation>The file is there already: it is replaced.</translation>
    </message>
    <message>
        <source>I giorni, per un foglio di calcolo (CSV)</source>
        <translation>The days, for a spreadsheet (CSV)</translation>
    </message>
    <message>
        <source>I tempi al chilometro, per un foglio di calcolo (CSV)</source>
        <translation>The times per kilometre, for a spreadsheet (CSV)</translation>
    </message>
    <message>
        <source>I giorni, per un programma (righe JSON)</source>
        <translation>The days, for a program (JSON lines)</translation>
    </message>
    <message>
        <source>Le gare e la tabella attiva, per un&apos;agenda (iCalendar)</source>
        <translation>The races and the active plan, for a calendar (iCalendar)</translation>
    </message>
    <message>
        <source>Da stampare e rilegare, A5 (PDF)</source>
        <translation>To print and bind, A5 (PDF)</translation>
    </message>
    <message>
        <source>Da stampare e rilegare, A4 (PDF)</source>
        <translation>To print and bind, A4 (PDF)</translation>
    </message>
    <message>
        <source>Da leggere sul telefono (HTML)</source>
        <translation>To read on the telephone (HTML)</translation>
    </message>
    <message>
        <source>Esporta</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Scrive il diario scelto in un file per altri programmi. Il diario resta com&apos;è.</source>
        <translation>Writes the chosen diary to a file for other programs. The diary stays as it is.</translation>
    </message>
    <message>
        <source>Il libro dell&apos;anno</source>
        <translation>The book of the year</translation>
    </message>
    <message>
        <source>Fa del diario scelto un libro: l&apos;anno in breve, i giorni, le gare, i percorsi, le statistiche e le tabelle. Il diario resta com&apos;è.</source>
        <translation>Makes a book of the chosen diary: the year at a glance, the days, races, routes, statistics and plans. The diary stays as it is.</translation>
    </message>
</context>
<context>
    <name>zelvia::HelpPage</name>
    <message>
        <source>Pagina della Guida</source>
        <translation>Page of the guide</translation>
    </message>
</context>
<context>
    <name>zelvia::HelpWindow</name>
    <message>
        <source>Guida di Zelvia</source>
        <translation>Guide to Zelvia</translation>
    </message>
    <message>
        <source>Sommario</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>&amp;Sommario</source>
        <translation>&amp;Contents</translation>
    </message>
    <message>
        <source>&amp;Cerca</source>
        <translation>&amp;Search</translation>
    </message>
    <message>
        <source>Indietro</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>La pagina di prima (Alt+Sinistra)</source>
        <translation>The page before (Alt+Left)</translation>
    </message>
    <message>
        <source>Avanti</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>La pagina seguente (Alt+Destra)</source>
        <translation>The page after (Alt+Right)</translation>
    </message>
    <message>
        <source>Inizio</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>La prima pagina (Alt+Home)</source>
        <translation>The first page (Alt+Home)</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Maiusc+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Successivo</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Non c&apos;è</source>
        <translation>Not there</translation>
    </message>
    <message>
        <source>&amp;Trova nella pagina:</source>
        <translation>&amp;Find in the page:</translation>
    </message>
</context>
<context>
    <name>zelvia::ImportColumns</name>
    <message>
        <source>Nella tabella ci sono colonne che non si conoscono. Che cosa contengono?</source>
        <translation>The table has columns that are not known. What do they hold?</translation>
    </message>
    <message>
        <source>Colonna %1</source>
        <translation>Column %1</translation>
    </message>
    <message>
        <source>non leggere</source>
        <translation>do not read</translation>
    </message>
</context>
<context>
    <name>zelvia::ImportForm</name>
    <message>
        <source>L&apos;ora è quella dell&apos;orologio, scritta nel file.</source>
        <translation>The time is that of the watch, written in the file.</translation>
    </message>
    <message>
        <source>L&apos;ora è quella del fuso scelto.</source>
        <translation>The time is that of the chosen zone.</translation>
    </message>
    <message>
        <source>L&apos;ora è quella del computer in quel momento: il file dice solo l&apos;ora UTC.</source>
        <translation>The time is that of the computer at that moment: the file tells UTC alone.</translation>
    </message>
    <message>
        <source>Inizio</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Km</source>
        <translation>Km</translation>
    </message>
    <message>
        <source>Metri</source>
        <translation>Metres</translation>
    </message>
    <message>
        <source>Percorso</source>
        <translation>Route</translation>
    </message>
    <message>
        <source>Tipo</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Stagione</source>
        <translation>Season</translation>
    </message>
    <message>
        <source>Torna alla &amp;proposta</source>
        <translation>Back to the &amp;proposal</translation>
    </message>
    <message>
        <source>Giorno</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Il tempo con le pause, o quello in moto: la fine è l&apos;inizio più questo tempo</source>
        <translation>The time with the pauses, or that in motion: the end is the start plus this time</translation>
    </message>
    <message>
        <source>Toglie ciò che è stato cambiato a mano in questa attività</source>
        <translation>Takes out what was changed by hand in this activity</translation>
    </message>
    <message>
        <source>metri</source>
        <translation>metres</translation>
    </message>
    <message>
        <source>Nel diario</source>
        <translation>In the diary</translation>
    </message>
    <message>
        <source>Giorno:</source>
        <translation>Day:</translation>
    </message>
    <message>
        <source>Inizio:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <source>Fine:</source>
        <translation>End:</translation>
    </message>
    <message>
        <source>Tempo:</source>
        <translation>Time:</translation>
    </message>
    <message>
        <source>Km:</source>
        <translation>Km:</translation>
    </message>
    <message>
        <source>Percorso:</source>
        <translation>Route:</translation>
    </message>
    <message>
        <source>Tipo:</source>
        <translation>Kind:</translation>
    </message>
    <message>
        <source>Stagione:</source>
        <translation>Season:</translation>
    </message>
    <message>
        <source>«%1» non è un&apos;ora: resta %2.</source>
        <translation>“%1” is not a time: it stays %2.</translation>
    </message>
    <message>
        <source>La fine deve venire dopo l&apos;inizio: resta %1.</source>
        <translation>The end has to come after the start: it stays %1.</translation>
    </message>
    <message>
        <source>%1 con le pause</source>
        <translation>%1 with pauses</translation>
    </message>
    <message>
        <source>%1 senza pause</source>
        <translation>%1 without pauses</translation>
    </message>
    <message>
        <source>Nel diario adesso niente</source>
        <translation>Nothing in the diary now</translation>
    </message>
    <message>
        <source>Nel diario adesso %1</source>
        <translation>In the diary now %1</translation>
    </message>
    <message>
        <source>Se viene scritta, nel giorno sostituisce: %1.</source>
        <translation>If it is written, it replaces in the day: %1.</translation>
    </message>
    <message>
        <source>Attività scelta</source>
        <translation>Chosen activity</translation>
    </message>
</context>
<context>
    <name>zelvia::ImportModel</name>
    <message>
        <source>Scrivi</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Giorno</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Inizio</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Km</source>
        <translation>Km</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Tempi Km</source>
        <translation>Splits</translation>
    </message>
    <message>
        <source>Percorso</source>
        <translation>Route</translation>
    </message>
    <message>
        <source>Esito</source>
        <translation>Outcome</translation>
    </message>
    <message>
        <source>Nel diario</source>
        <translation>In the diary</translation>
    </message>
    <message>
        <source>Avvisi</source>
        <translation>Warnings</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>%1, n. %2</source>
        <translation>%1, no. %2</translation>
    </message>
    <message>
        <source>da confrontare</source>
        <translation>to be compared</translation>
    </message>
    <message>
        <source>da scrivere</source>
        <translation>to be written</translation>
    </message>
    <message>
        <source>da non scrivere</source>
        <translation>not to be written</translation>
    </message>
</context>
<context>
    <name>zelvia::ImportPage</name>
    <message>
        <source>Dall&apos;orologio</source>
        <translation>From the watch</translation>
    </message>
    <message>
        <source>Mette nel diario le corse di un orologio o di un telefono (FIT, TCX, GPX), o i giorni di un foglio di calcolo (CSV). I file e le cartelle si possono anche trascinare qui.</source>
        <translation>Puts into the diary the runs of a watch or a telephone (FIT, TCX, GPX), or the days of a spreadsheet (CSV). Files and folders can also be dropped here.</translation>
    </message>
    <message>
        <source>&amp;Altri sport</source>
        <translation>Othe&amp;r sports</translation>
    </message>
    <message>
        <source>&amp;Riprova</source>
        <translation>Tr&amp;y again</translation>
    </message>
    <message>
        <source>Scrivi nel &amp;diario</source>
        <translation>Write into the &amp;diary</translation>
    </message>
    <message>
        <source>S&amp;vuota</source>
        <translation>Cl&amp;ear</translation>
    </message>
    <message>
        <source>Confronta di nuovo con il diario</source>
        <translation>Compares with the diary again</translation>
    </message>
    <message>
        <source>Fa una copia di sicurezza, poi scrive nel diario ciò che è spuntato</source>
        <translation>Takes a safety copy, then writes into the diary what is ticked</translation>
    </message>
    <message>
        <source>Fil&amp;e…</source>
        <translation>Fi&amp;le…</translation>
    </message>
    <message>
        <source>Sceglie i file da leggere</source>
        <translation>Chooses the files to read</translation>
    </message>
    <message>
        <source>Car&amp;tella…</source>
        <translation>F&amp;older…</translation>
    </message>
    <message>
        <source>Sceglie una cartella, di cui si leggono tutti i file FIT, TCX e GPX</source>
        <translation>Chooses a folder, of which all FIT, TCX and GPX files are read</translation>
    </message>
    <message>
        <source>Toglie tutto dall&apos;elenco; i file e il diario restano come sono</source>
        <translation>Takes everything off the list; the files and the diary stay as they are</translation>
    </message>
    <message>
        <source>Fuso orario</source>
        <translation>Time zone</translation>
    </message>
    <message>
        <source>Che ora valeva dove si è corso, per tutte le attività</source>
        <translation>Which time held where one ran, for all activities</translation>
    </message>
    <message>
        <source>Ora dell&apos;orologio</source>
        <translation>Time of the watch</translation>
    </message>
    <message>
        <source>Pause di tutte le attività</source>
        <translation>Pauses of all activities</translation>
    </message>
    <message>
        <source>Se la fine comprende le pause, per tutte le attività</source>
        <translation>Whether the end includes the pauses, for all activities</translation>
    </message>
    <message>
        <source>Con le pause</source>
        <translation>With the pauses</translation>
    </message>
    <message>
        <source>Senza le pause</source>
        <translation>Without the pauses</translation>
    </message>
    <message>
        <source>Non solo le corse: anche bicicletta, nuoto, camminate</source>
        <translation>Not only runs: cycling, swimming and walks, too</translation>
    </message>
    <message>
        <source>Scegliere i file da importare</source>
        <translation>Choose the files to import</translation>
    </message>
    <message>
        <source>Attività e tabelle (*.fit *.FIT *.tcx *.TCX *.gpx *.GPX *.csv *.CSV *.tsv *.txt)</source>
        <translation>Activities and tables (*.fit *.FIT *.tcx *.TCX *.gpx *.GPX *.csv *.CSV *.tsv *.txt)</translation>
    </message>
    <message>
        <source>Tutti i file (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Scegliere la cartella da importare</source>
        <translation>Choose the folder to import</translation>
    </message>
    <message>
        <source>Lettura fermata: letti %1 file su %2.</source>
        <translation>Reading stopped: %1 files of %2 read.</translation>
    </message>
    <message>
        <source>Confronto fermato.</source>
        <translation>Comparison stopped.</translation>
    </message>
    <message>
        <source>Le spunte sono cambiate: guardare e premere di nuovo.</source>
        <translation>The ticks have changed: look, and press again.</translation>
    </message>
    <message>
        <source>Ancora nessun file.</source>
        <translation>No file yet.</translation>
    </message>
    <message>
        <source>Attività: %1</source>
        <translation>Activities: %1</translation>
    </message>
    <message>
        <source>I file aggiunti adesso vengono letti dopo quelli di prima.</source>
        <translation>The files that were just added are read after the earlier ones.</translation>
    </message>
</context>
<context>
    <name>zelvia::ImportSplits</name>
    <message>
        <source>Tempi Km</source>
        <translation>Splits</translation>
    </message>
    <message>
        <source>Km</source>
        <translation>Km</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Nel diario</source>
        <translation>In the diary</translation>
    </message>
    <message>
        <source>«%1» non è un chilometro da 1 a 100 con il suo tempo: i Tempi Km restano come sono.</source>
        <translation>“%1” is not a kilometre from 1 to 100 with its time: the splits stay as they are.</translation>
    </message>
</context>
<context>
    <name>zelvia::ImportTable</name>
    <message>
        <source>Attività trovate</source>
        <translation>Activities found</translation>
    </message>
</context>
<context>
    <name>zelvia::JournalPage</name>
    <message>
        <source>Giornale</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Ciò che è stato scritto in Zelvia e non salvato: per un&apos;interruzione, o per un&apos;uscita senza salvare. Si può riportare nel diario, tutto o soltanto ciò che è spuntato, o dimenticare.</source>
        <translation>What was written in Zelvia and not saved: because of an interruption, or of leaving without saving. It can be brought back into the diary, all of it or only what is ticked, or forgotten.</translation>
    </message>
    <message>
        <source>Giorni non salvati</source>
        <translation>Days not saved</translation>
    </message>
    <message>
        <source>&amp;Riportare nel diario ciò che è spuntato</source>
        <translation>&amp;Bring back into the diary what is ticked</translation>
    </message>
    <message>
        <source>&amp;Anche ciò che nel frattempo è cambiato nel diario</source>
        <translation>&amp;Also what has changed in the diary meanwhile</translation>
    </message>
    <message>
        <source>&amp;Dimenticare tutto ciò che non è stato salvato</source>
        <translation>F&amp;orget all that was not saved</translation>
    </message>
    <message>
        <source>Non c&apos;è niente da riprendere: tutto è stato salvato.</source>
        <translation>There is nothing to bring back: all has been saved.</translation>
    </message>
</context>
<context>
    <name>zelvia::MergePage</name>
    <message>
        <source>Due computer</source>
        <translation>Two computers</translation>
    </message>
    <message>
        <source>Unisce, giorno per giorno, ciò che due computer hanno scritto nello stesso diario: le copie in conflitto che un programma di sincronizzazione lascia nella cartella, o un diario portato da fuori. I giorni cambiati da una parte sola vengono presi; quelli cambiati da tutte e due si mostrano campo per campo.</source>
        <translation>Merges, day by day, what two computers have written into the same diary: the conflicting copies that a synchronising program leaves in the folder, or a diary brought from elsewhere. Days changed on one side alone are taken; those changed on both are shown field by field.</translation>
    </message>
    <message>
        <source>Giorni diversi</source>
        <translation>Days that differ</translation>
    </message>
    <message>
        <source>Diario dell&apos;altro computer</source>
        <translation>Diary of the other computer</translation>
    </message>
    <message>
        <source>&amp;Prendere dall&apos;altro anche i giorni cambiati da tutte e due le parti</source>
        <translation>&amp;Take from the other also the days changed on both sides</translation>
    </message>
    <message>
        <source>le copie in conflitto che sono nella cartella</source>
        <translation>the conflicting copies in the folder</translation>
    </message>
    <message>
        <source>&amp;L&apos;altro diario:</source>
        <translation>Th&amp;e other diary:</translation>
    </message>
</context>
<context>
    <name>zelvia::NewYearPage</name>
    <message>
        <source>Anno nuovo</source>
        <translation>New year</translation>
    </message>
    <message>
        <source>Prepara il diario vuoto di un anno, con le liste, i percorsi e le tabelle di quello di adesso. Al prossimo avvio Zelvia lo apre; quello di adesso resta dov&apos;è.</source>
        <translation>Prepares the empty diary of a year, with the lists, routes and plans of the present one. Zelvia opens it at the next start; the present one stays where it is.</translation>
    </message>
    <message>
        <source>&amp;Tenere il calendario delle gare di adesso</source>
        <translation>&amp;Keep the present calendar of races</translation>
    </message>
    <message>
        <source>Anno</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>&amp;Anno:</source>
        <translation>Y&amp;ear:</translation>
    </message>
</context>
<context>
    <name>zelvia::OutcomeTable</name>
    <message>
        <source>virgolette</source>
        <translation>quotation marks</translation>
    </message>
    <message>
        <source>manca</source>
        <translation>missing</translation>
    </message>
    <message>
        <source>di troppo</source>
        <translation>too many</translation>
    </message>
    <message>
        <source>caratteri</source>
        <translation>characters</translation>
    </message>
    <message>
        <source>fine riga</source>
        <translation>line end</translation>
    </message>
    <message>
        <source>numero</source>
        <translation>number</translation>
    </message>
    <message>
        <source>limiti</source>
        <translation>limits</translation>
    </message>
    <message>
        <source>doppione</source>
        <translation>double</translation>
    </message>
    <message>
        <source>rimando</source>
        <translation>reference</translation>
    </message>
    <message>
        <source>tabella</source>
        <translation>plan</translation>
    </message>
    <message>
        <source>qui</source>
        <translation>here</translation>
    </message>
    <message>
        <source>di là</source>
        <translation>there</translation>
    </message>
    <message>
        <source>qui e di là</source>
        <translation>here and there</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Giorno</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Campo</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>Difetto</source>
        <translation>Fault</translation>
    </message>
    <message>
        <source>Che cosa non va</source>
        <translation>What is wrong</translation>
    </message>
    <message>
        <source>Diario</source>
        <translation>Diary</translation>
    </message>
    <message>
        <source>Anno</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Uscite</source>
        <translation>Runs</translation>
    </message>
    <message>
        <source>Km</source>
        <translation>Km</translation>
    </message>
    <message>
        <source>Gare</source>
        <translation>Races</translation>
    </message>
    <message>
        <source>Prima</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>Dopo</source>
        <translation>After</translation>
    </message>
    <message>
        <source>Nella copia</source>
        <translation>In the copy</translation>
    </message>
    <message>
        <source>Adesso</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>Qui</source>
        <translation>Here</translation>
    </message>
    <message>
        <source>Di là</source>
        <translation>There</translation>
    </message>
    <message>
        <source>Cambiato</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>Copia</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Quando</source>
        <translation>When</translation>
    </message>
    <message>
        <source>Diari</source>
        <translation>Diaries</translation>
    </message>
    <message>
        <source>Grandezza</source>
        <translation>Size</translation>
    </message>
</context>
<context>
    <name>zelvia::PathField</name>
    <message>
        <source>&amp;Scegli…</source>
        <translation>&amp;Choose…</translation>
    </message>
    <message>
        <source>Scegli: %1</source>
        <translation>Choose: %1</translation>
    </message>
    <message>
        <source>Scegliere il file da scrivere</source>
        <translation>Choose the file to write</translation>
    </message>
    <message>
        <source>Scegliere il diario dell&apos;altro computer</source>
        <translation>Choose the diary of the other computer</translation>
    </message>
</context>
<context>
    <name>zelvia::SearchPane</name>
    <message>
        <source>Argomenti trovati</source>
        <translation>Topics found</translation>
    </message>
    <message>
        <source>&amp;Parole da cercare:</source>
        <translation>&amp;Words to look for:</translation>
    </message>
    <message>
        <source>Preparazione dell&apos;indice…</source>
        <translation>Preparing the index…</translation>
    </message>
    <message>
        <source>Nessun argomento trovato</source>
        <translation>No topic found</translation>
    </message>
    <message>
        <source>Un argomento trovato</source>
        <translation>One topic found</translation>
    </message>
    <message>
        <source>%1 argomenti trovati</source>
        <translation>%1 topics found</translation>
    </message>
</context>
<context>
    <name>zelvia::YearsPage</name>
    <message>
        <source>Anni passati</source>
        <translation>Past years</translation>
    </message>
    <message>
        <source>Tutti i diari della cartella. Uno di un anno passato si apre con le sue date: l&apos;ultimo giorno di quell&apos;anno vale per oggi, perciò i giorni della settimana e gli anni bisestili sono giusti.</source>
        <translation>All diaries of the folder. One of a past year opens with its own dates: the last day of that year is taken for today, so weekdays and leap years are right.</translation>
    </message>
    <message>
        <source>Diari</source>
        <translation>Diaries</translation>
    </message>
    <message>
        <source>&amp;Apri</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>Apre in Zelvia il diario scelto</source>
        <translation>Opens the chosen diary in Zelvia</translation>
    </message>
    <message>
        <source>&amp;Tutti gli anni…</source>
        <translation>&amp;All years…</translation>
    </message>
    <message>
        <source>Zelvia apre il diario «%1».</source>
        <translation>Zelvia opens the diary “%1”.</translation>
    </message>
    <message>
        <source>Zelvia non si avvia («%1»): il diario non è stato aperto.</source>
        <translation>Zelvia does not start (“%1”): the diary has not been opened.</translation>
    </message>
    <message>
        <source>La pagina non va prima del %1: mostra il %2, che ha gli stessi giorni della settimana.</source>
        <translation>The page does not go back beyond %1: it shows %2, which has the same weekdays.</translation>
    </message>
</context>
<context>
    <name>zelvia::YearsWindow</name>
    <message>
        <source>Tutti gli anni</source>
        <translation>All years</translation>
    </message>
    <message>
        <source>La cartella dei diari non si legge: %1</source>
        <translation>The folder of the diaries can&apos;t be read: %1</translation>
    </message>
    <message>
        <source>Grafici</source>
        <translation>Charts</translation>
    </message>
    <message>
        <source>nessuno</source>
        <translation>none</translation>
    </message>
    <message>
        <source> km</source>
        <translation> km</translation>
    </message>
    <message>
        <source>&amp;Anno:</source>
        <translation>&amp;Year:</translation>
    </message>
    <message>
        <source>A con&amp;fronto:</source>
        <translation>Co&amp;mpare with:</translation>
    </message>
    <message>
        <source>&amp;Percorso:</source>
        <translation>&amp;Route:</translation>
    </message>
    <message>
        <source>&amp;Obiettivo dell&apos;anno:</source>
        <translation>&amp;Goal of the year:</translation>
    </message>
    <message>
        <source>Valore</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Lettura dei diari</source>
        <translation>Reading the diaries</translation>
    </message>
    <message>
        <source>Diario %v di %m</source>
        <translation>Diary %v of %m</translation>
    </message>
    <message>
        <source>&amp;Ingrandisci</source>
        <translation>Zoom &amp;in</translation>
    </message>
    <message>
        <source>Mostra un tratto più breve («+»)</source>
        <translation>Shows a shorter stretch (“+”)</translation>
    </message>
    <message>
        <source>Ri&amp;duci</source>
        <translation>Zoom &amp;out</translation>
    </message>
    <message>
        <source>Mostra un tratto più lungo («-»)</source>
        <translation>Shows a longer stretch (“-”)</translation>
    </message>
    <message>
        <source>T&amp;utto</source>
        <translation>&amp;All</translation>
    </message>
    <message>
        <source>Mostra di nuovo tutto («0»)</source>
        <translation>Shows everything again (“0”)</translation>
    </message>
    <message>
        <source>&amp;Copia grafico</source>
        <translation>&amp;Copy chart</translation>
    </message>
    <message>
        <source>Mette il grafico negli appunti (Ctrl+C)</source>
        <translation>Puts the chart on the clipboard (Ctrl+C)</translation>
    </message>
    <message>
        <source>Copia &amp;tabella</source>
        <translation>Copy &amp;table</translation>
    </message>
    <message>
        <source>Mette la tabella negli appunti (Ctrl+Maiusc+C)</source>
        <translation>Puts the table on the clipboard (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>&amp;Salva…</source>
        <translation>&amp;Save…</translation>
    </message>
    <message>
        <source>Salva il grafico come immagine (Ctrl+S)</source>
        <translation>Saves the chart as a picture (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sta&amp;mpa</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>Stampa il grafico (Ctrl+P)</source>
        <translation>Prints the chart (Ctrl+P)</translation>
    </message>
    <message>
        <source>&amp;Esci</source>
        <translation>C&amp;lose</translation>
    </message>
    <message>
        <source>Chiude la finestra (Ctrl+W)</source>
        <translation>Closes the window (Ctrl+W)</translation>
    </message>
    <message>
        <source>Gli obiettivi non si leggono: %1</source>
        <translation>The goals can&apos;t be read: %1</translation>
    </message>
    <message>
        <source>Il diario «%1» non è contato: %2.</source>
        <translation>The diary “%1” is not counted: %2.</translation>
    </message>
    <message>
        <source>tutti gli anni</source>
        <translation>all years</translation>
    </message>
    <message>
        <source>nessun altro</source>
        <translation>no other</translation>
    </message>
    <message>
        <source>tutti gli altri</source>
        <translation>all others</translation>
    </message>
    <message>
        <source>tutti i percorsi</source>
        <translation>all routes</translation>
    </message>
    <message>
        <source>Tabella: %1</source>
        <translation>Table: %1</translation>
    </message>
    <message>
        <source>Nessun obiettivo per quest&apos;anno.</source>
        <translation>No goal for this year.</translation>
    </message>
    <message>
        <source>L&apos;obiettivo non è stato salvato: %1</source>
        <translation>The goal has not been saved: %1</translation>
    </message>
    <message>
        <source>Il grafico è negli appunti.</source>
        <translation>The chart is on the clipboard.</translation>
    </message>
    <message>
        <source>La tabella è negli appunti.</source>
        <translation>The table is on the clipboard.</translation>
    </message>
    <message>
        <source>Il grafico è in «%1».</source>
        <translation>The chart is in “%1”.</translation>
    </message>
    <message>
        <source>Il grafico non è stato salvato in «%1»: %2.</source>
        <translation>The chart has not been saved in “%1”: %2.</translation>
    </message>
    <message>
        <source>Il grafico non è stato salvato: %1.</source>
        <translation>The chart has not been saved: %1.</translation>
    </message>
    <message>
        <source>Il grafico è in stampa.</source>
        <translation>The chart is being printed.</translation>
    </message>
</context>
</TS>
