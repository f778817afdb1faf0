// What is said of the dice: generators, dice roll files, pop-up rolls and probabilities. Each text
// is a member of one table, so that whoever checks the languages walks through all of them.
#pragma once

#include "texts/language.h"

namespace tessarel {

// clang-format off
struct DiceTextTable {
  // Generators.
  SixTexts GeneratorUnavailable = {
      "Unfortunately, RNG #%1 is currently unavailable.",
      "Lamentablemente, el generador n.º %1 no está disponible ahora.",
      "Der Generator Nr. %1 ist zurzeit leider nicht verfügbar.",
      "Malheureusement, le générateur n° %1 est actuellement indisponible.",
      "Ne yazik ki %1 numarali üreteç su anda kullanilamiyor.",
      "Purtroppo il generatore n. %1 non è al momento disponibile."};
  SixTexts FirstTwisterMissing = {
      "Unable to locate a support file called MT19937AR.DLL\rThis file is needed to operate random number generators #1, #6, and #8.",
      "No se encuentra el archivo auxiliar MT19937AR.DLL\rEste archivo es necesario para los generadores de números aleatorios n.º 1, 6 y 8.",
      "Die Hilfsdatei MT19937AR.DLL wurde nicht gefunden\rDiese Datei wird für die Zufallszahlengeneratoren Nr. 1, 6 und 8 benötigt.",
      "Fichier auxiliaire MT19937AR.DLL introuvable\rCe fichier est nécessaire aux générateurs de nombres aléatoires n° 1, 6 et 8.",
      "MT19937AR.DLL adli destek dosyasi bulunamadi\rBu dosya 1, 6 ve 8 numarali rastgele sayi üreteçleri için gereklidir.",
      "Impossibile trovare il file di supporto MT19937AR.DLL\rQuesto file serve ai generatori di numeri casuali n. 1, 6 e 8."};
  SixTexts SecondTwisterMissing = {
      "Unable to locate a support file called COKUS.DLL\rThis file is needed to operate random number generators #2 and #7.",
      "No se encuentra el archivo auxiliar COKUS.DLL\rEste archivo es necesario para los generadores de números aleatorios n.º 2 y 7.",
      "Die Hilfsdatei COKUS.DLL wurde nicht gefunden\rDiese Datei wird für die Zufallszahlengeneratoren Nr. 2 und 7 benötigt.",
      "Fichier auxiliaire COKUS.DLL introuvable\rCe fichier est nécessaire aux générateurs de nombres aléatoires n° 2 et 7.",
      "COKUS.DLL adli destek dosyasi bulunamadi\rBu dosya 2 ve 7 numarali rastgele sayi üreteçleri için gereklidir.",
      "Impossibile trovare il file di supporto COKUS.DLL\rQuesto file serve ai generatori di numeri casuali n. 2 e 7."};
  SixTexts WhatToDoAboutMissing = {
      "This problem usually happens when a user drags Tessarel' main game file out of its installed location and drops it on the desktop to create a shortcut.\r\rDon't worry, you can still play the game with one of the remaining random number generators.  However, if the main game file remains isolated then it'll be unable to access other support files such as sound files.\r\rA better solution is to return the main game file to its originally installed location together with all the other installed files.  If you're unable to locate the original files then you can just run the installation program tessarel-setup",
      "Este problema suele ocurrir cuando se arrastra el archivo principal de Tessarel fuera de su lugar de instalación y se suelta en el escritorio para crear un acceso directo.\r\rNo se preocupe: puede seguir jugando con uno de los demás generadores de números aleatorios.  Pero si el archivo principal sigue aislado, no podrá acceder a otros archivos auxiliares, como los de sonido.\r\rLo mejor es devolver el archivo principal a su lugar de instalación original, junto a los demás archivos instalados.  Si no encuentra los archivos originales, ejecute el programa de instalación tessarel-setup",
      "Dieses Problem tritt meist auf, wenn die Hauptdatei von Tessarel aus ihrem Installationsordner auf den Desktop gezogen wird, um eine Verknüpfung anzulegen.\r\rKeine Sorge, Sie können mit einem der übrigen Zufallszahlengeneratoren weiterspielen.  Bleibt die Hauptdatei jedoch getrennt, hat sie keinen Zugriff auf andere Hilfsdateien wie die Klangdateien.\r\rBesser ist es, die Hauptdatei in ihren ursprünglichen Ordner zu den anderen installierten Dateien zurückzulegen.  Finden Sie die ursprünglichen Dateien nicht, so führen Sie das Installationsprogramm aus: tessarel-setup",
      "Ce problème survient généralement quand le fichier principal de Tessarel est sorti de son emplacement d'installation et déposé sur le bureau pour créer un raccourci.\r\rNe vous inquiétez pas, vous pouvez toujours jouer avec l'un des autres générateurs de nombres aléatoires.  Mais si le fichier principal reste isolé, il ne pourra pas accéder aux autres fichiers auxiliaires, comme les fichiers de sons.\r\rMieux vaut remettre le fichier principal à son emplacement d'origine, avec tous les autres fichiers installés.  Si vous ne retrouvez pas les fichiers d'origine, exécutez le programme d'installation tessarel-setup",
      "Bu sorun genellikle kisayol olusturmak için Tessarel'in ana dosyasi kurulu oldugu yerden masaüstüne sürüklendiginde ortaya çikar.\r\rEndiselenmeyin, kalan rastgele sayi üreteçlerinden biriyle oynamaya devam edebilirsiniz.  Ancak ana dosya ayri kalirsa ses dosyalari gibi diger destek dosyalarina erisemez.\r\rEn iyisi ana dosyayi kurulu diger dosyalarin yanina, ilk yerine geri koymaktir.  Özgün dosyalari bulamazsaniz kurulum programini çalistirin: tessarel-setup",
      "Questo problema si verifica di solito quando il file principale di Tessarel viene trascinato fuori dalla cartella di installazione sul desktop per creare un collegamento.\r\rNiente paura: si può continuare a giocare con uno degli altri generatori di numeri casuali.  Se però il file principale resta isolato, non potrà accedere ad altri file di supporto come quelli audio.\r\rLa soluzione migliore è rimettere il file principale nella cartella di installazione originale, insieme a tutti gli altri file installati.  Se non si trovano i file originali, basta eseguire il programma di installazione tessarel-setup"};
  SixTexts MissingSupportFile = {
      "Missing Support File",
      "Falta un archivo auxiliar",
      "Hilfsdatei fehlt",
      "Fichier auxiliaire manquant",
      "Destek Dosyasi Eksik",
      "File di supporto mancante"};

  // Dice roll files in play.
  SixTexts RollFileError = {
      "Dice Roll File Error",
      "Error en el archivo de tiradas de dados",
      "Fehler in der Würfelwurfdatei",
      "Erreur du fichier de lancers de dés",
      "Zar Atisi Dosyasi Hatasi",
      "Errore nel file dei lanci di dadi"};
  SixTexts InvalidRollInFile = {
      "A dice roll value has been found to be out of limits. \r\rPlayback of this Dice Roll File has stopped so that you can check the file or continue without it.",
      "Se ha encontrado un valor de tirada fuera de los límites. \r\rLa reproducción de este archivo de tiradas se ha detenido para que pueda revisar el archivo o continuar sin él.",
      "Ein Würfelwert liegt außerhalb der Grenzen. \r\rDie Wiedergabe dieser Würfelwurfdatei wurde angehalten, damit Sie die Datei prüfen oder ohne sie weiterspielen können.",
      "Une valeur de lancer hors limites a été trouvée. \r\rLa lecture de ce fichier de lancers de dés s'est arrêtée pour que vous puissiez vérifier le fichier ou continuer sans lui.",
      "Sinirlar disinda bir zar degeri bulundu. \r\rDosyayi denetleyebilmeniz veya onsuz devam edebilmeniz için bu zar atisi dosyasinin oynatilmasi durduruldu.",
      "È stato trovato un valore dei dadi fuori dai limiti. \r\rLa riproduzione di questo file dei lanci si è fermata per permettere di controllare il file o di continuare senza."};
  SixTexts InvalidRollInPopup = {
      "A dice roll value has been found to be out of limits. \r\rPlay has stopped so that you can check the pop-up file or continue without it.",
      "Se ha encontrado un valor de tirada fuera de los límites. \r\rEl juego se ha detenido para que pueda revisar el archivo emergente o continuar sin él.",
      "Ein Würfelwert liegt außerhalb der Grenzen. \r\rDas Spiel wurde angehalten, damit Sie die Popup-Datei prüfen oder ohne sie weiterspielen können.",
      "Une valeur de lancer hors limites a été trouvée. \r\rLe jeu s'est arrêté pour que vous puissiez vérifier le fichier pop-up ou continuer sans lui.",
      "Sinirlar disinda bir zar degeri bulundu. \r\rAçilir dosyayi denetleyebilmeniz veya onsuz devam edebilmeniz için oyun durduruldu.",
      "È stato trovato un valore dei dadi fuori dai limiti. \r\rIl gioco si è fermato per permettere di controllare il file pop-up o di continuare senza."};
  SixTexts StoppedByInvalidRoll = {
      "Stopped due to Dice Roll File value out of limits.",
      "Detenido por un valor fuera de los límites en el archivo de tiradas de dados.",
      "Gestoppt, weil ein Wert der Würfelwurfdatei außerhalb der Grenzen liegt.",
      "Arrêté : valeur hors limites dans le fichier de lancers de dés.",
      "Zar atisi dosyasindaki sinir disi deger nedeniyle durduruldu.",
      "Fermato: valore fuori dai limiti nel file dei lanci di dadi."};
  SixTexts StoppedByEndOfFile = {
      "Stopped due to end of Dice Roll File reached.",
      "Detenido por llegar al final del archivo de tiradas de dados.",
      "Gestoppt, weil das Ende der Würfelwurfdatei erreicht ist.",
      "Arrêté : fin du fichier de lancers de dés atteinte.",
      "Zar atisi dosyasinin sonuna ulasildigi için durduruldu.",
      "Fermato: raggiunta la fine del file dei lanci di dadi."};
  SixTexts WaitingForRollFile = {  // in the table's status, while a pop-up roll waits
      "Waiting for Roll File",
      "Esperando el archivo de tiradas",
      "Warten auf die Wurfdatei",
      "En attente du fichier de lancers",
      "Atis dosyasi bekleniyor",
      "In attesa del file dei lanci"};

  // The roll-your-own console.
  SixTexts RecordTitle = {
      "Record Dice Rolls",
      "Grabar tiradas de dados",
      "Würfe aufzeichnen",
      "Enregistrer des lancers de dés",
      "Zar Atislarini Kaydet",
      "Registra lanci di dadi"};
  SixTexts PopupTitle = {
      "Pop-up Roll File",
      "Archivo emergente de tiradas",
      "Popup-Wurfdatei",
      "Fichier de lancers pop-up",
      "Açilir Atis Dosyasi",
      "File di lanci pop-up"};
  SixTexts RollFileTitle = {
      "Dice Roll File",
      "Archivo de tiradas de dados",
      "Würfelwurfdatei",
      "Fichier de lancers de dés",
      "Zar Atisi Dosyasi",
      "File dei lanci di dadi"};
  SixTexts CopyTitle = {
      "Copy To Dice Roll File",
      "Copiar a un archivo de tiradas de dados",
      "In Würfelwurfdatei kopieren",
      "Copier dans un fichier de lancers de dés",
      "Zar Atisi Dosyasina Kopyala",
      "Copia in un file di lanci di dadi"};
  SixTexts CopyTextTitle = {
      "Copy Dice Rolls To Text File",
      "Copiar tiradas de dados a un archivo de texto",
      "Würfe in Textdatei kopieren",
      "Copier les lancers de dés dans un fichier texte",
      "Zar Atislarini Metin Dosyasina Kopyala",
      "Copia lanci di dadi in un file di testo"};
  SixTexts PrintTitle = {
      "Print Dice Rolls",
      "Imprimir tiradas de dados",
      "Würfe drucken",
      "Imprimer les lancers de dés",
      "Zar Atislarini Yazdir",
      "Stampa lanci di dadi"};
  SixTexts OpenFileFirst = {
      "Please open a dice roll file first.",
      "Abra primero un archivo de tiradas de dados.",
      "Öffnen Sie zuerst eine Würfelwurfdatei.",
      "Ouvrez d'abord un fichier de lancers de dés.",
      "Lütfen önce bir zar atisi dosyasi açin.",
      "Aprire prima un file dei lanci di dadi."};
  SixTexts PlaybackClosesPopup = {
      "A pop-up roll file is in use. It will be closed if you play back this dice roll file.\r\rWould you like to close it?",
      "Hay un archivo emergente de tiradas en uso. Se cerrará si reproduce este archivo de tiradas de dados.\r\r¿Desea cerrarlo?",
      "Eine Popup-Wurfdatei ist in Gebrauch. Sie wird geschlossen, wenn Sie diese Würfelwurfdatei wiedergeben.\r\rMöchten Sie sie schließen?",
      "Un fichier de lancers pop-up est utilisé. Il sera fermé si vous lisez ce fichier de lancers de dés.\r\rVoulez-vous le fermer ?",
      "Bir açilir atis dosyasi kullaniliyor. Bu zar atisi dosyasini oynatirsaniz kapatilacak.\r\rKapatmak istiyor musunuz?",
      "È in uso un file di lanci pop-up. Verrà chiuso se si riproduce questo file dei lanci di dadi.\r\rChiuderlo?"};
  SixTexts NothingToPlay = {
      "There are no dice rolls in this file to play back.",
      "Este archivo no contiene tiradas que reproducir.",
      "Diese Datei enthält keine Würfe zum Wiedergeben.",
      "Ce fichier ne contient aucun lancer à lire.",
      "Bu dosyada oynatilacak zar atisi yok.",
      "Questo file non contiene lanci da riprodurre."};
  SixTexts TargetIsOpen = {
      "Can't copy rolls to a file that's open and in use.\r\rPlease select another file name.",
      "No se pueden copiar tiradas a un archivo abierto y en uso.\r\rElija otro nombre de archivo.",
      "In eine geöffnete und benutzte Datei können keine Würfe kopiert werden.\r\rWählen Sie einen anderen Dateinamen.",
      "Impossible de copier des lancers dans un fichier ouvert et utilisé.\r\rChoisissez un autre nom de fichier.",
      "Açik ve kullanimda olan bir dosyaya atis kopyalanamaz.\r\rLütfen baska bir dosya adi seçin.",
      "Impossibile copiare lanci in un file aperto e in uso.\r\rScegliere un altro nome di file."};
  SixTexts TextTargetIsOpen = {
      "Can't use the Copy To Text File command to copy rolls to a file that's open and in use.\r\rPlease select another file name or use the Copy and Paste commands to modify the open file.",
      "No se puede copiar tiradas como texto a un archivo abierto y en uso.\r\rElija otro nombre de archivo o use las órdenes Copiar y Pegar para modificar el archivo abierto.",
      "Würfe lassen sich nicht als Text in eine geöffnete und benutzte Datei kopieren.\r\rWählen Sie einen anderen Dateinamen oder ändern Sie die geöffnete Datei mit Kopieren und Einfügen.",
      "Impossible de copier les lancers comme texte dans un fichier ouvert et utilisé.\r\rChoisissez un autre nom de fichier ou modifiez le fichier ouvert avec Copier et Coller.",
      "Atislar açik ve kullanimda olan bir dosyaya metin olarak kopyalanamaz.\r\rLütfen baska bir dosya adi seçin veya açik dosyayi Kopyala ve Yapistir komutlariyla degistirin.",
      "Impossibile copiare i lanci come testo in un file aperto e in uso.\r\rScegliere un altro nome di file o modificare il file aperto con i comandi Copia e Incolla."};
  SixTexts NotARollFile = {  // %1 the file
      "This file is either from an earlier version, has been corrupted, or is not a true Tessarel dice roll file.\r\r%1",
      "Este archivo es de una versión anterior, está dañado o no es un verdadero archivo de tiradas de dados de Tessarel.\r\r%1",
      "Diese Datei stammt aus einer früheren Version, ist beschädigt oder keine echte Würfelwurfdatei von Tessarel.\r\r%1",
      "Ce fichier provient d'une version antérieure, est endommagé ou n'est pas un véritable fichier de lancers de dés de Tessarel.\r\r%1",
      "Bu dosya eski bir sürümden, bozulmus veya gerçek bir Tessarel zar atisi dosyasi degil.\r\r%1",
      "Questo file proviene da una versione precedente, è danneggiato o non è un vero file dei lanci di dadi di Tessarel.\r\r%1"};
  SixTexts EmptyFormat = {  // its words are the same in all languages
      "You must include one or more pieces of dice roll information in your output format, such as:\r\r    Roll#, Die1, Die2, or Total",
      "El formato de salida debe incluir uno o más datos de la tirada, como:\r\r    Roll#, Die1, Die2 o Total",
      "Das Ausgabeformat muss mindestens eine Angabe zum Wurf enthalten, etwa:\r\r    Roll#, Die1, Die2 oder Total",
      "Le format de sortie doit contenir au moins une information sur le lancer, par exemple :\r\r    Roll#, Die1, Die2 ou Total",
      "Çikti biçiminde atisa ait en az bir bilgi bulunmalidir, örnegin:\r\r    Roll#, Die1, Die2 veya Total",
      "Il formato di uscita deve contenere almeno un dato del lancio, per esempio:\r\r    Roll#, Die1, Die2 o Total"};
  SixTexts AskToRenumber = {
      "The rolls you've selected do not begin with roll #1.  Would you like to renumber them in the output starting with #1?",
      "Las tiradas seleccionadas no empiezan por la n.º 1.  ¿Desea renumerarlas en la salida a partir del 1?",
      "Die ausgewählten Würfe beginnen nicht mit Wurf Nr. 1.  Möchten Sie sie in der Ausgabe ab Nr. 1 neu nummerieren?",
      "Les lancers sélectionnés ne commencent pas par le n° 1.  Voulez-vous les renuméroter à partir de 1 dans la sortie ?",
      "Seçtiginiz atislar 1 numarali atisla baslamiyor.  Çiktida 1'den baslayarak yeniden numaralamak ister misiniz?",
      "I lanci selezionati non iniziano dal n. 1.  Rinumerarli nell'uscita a partire da 1?"};
  SixTexts AskToPrintAll = {
      "Would you like to print all rolls?\r\rIf not, then only selected rolls will be printed.",
      "¿Desea imprimir todas las tiradas?\r\rSi no, solo se imprimirán las seleccionadas.",
      "Möchten Sie alle Würfe drucken?\r\rWenn nicht, werden nur die ausgewählten gedruckt.",
      "Voulez-vous imprimer tous les lancers ?\r\rSinon, seuls les lancers sélectionnés seront imprimés.",
      "Tüm atislari yazdirmak ister misiniz?\r\rAksi halde yalnizca seçilenler yazdirilacak.",
      "Stampare tutti i lanci?\r\rAltrimenti verranno stampati solo quelli selezionati."};
  SixTexts NothingToPrint = {
      "There are no dice rolls to print.",
      "No hay tiradas de dados que imprimir.",
      "Es sind keine Würfe zu drucken.",
      "Il n'y a aucun lancer de dés à imprimer.",
      "Yazdirilacak zar atisi yok.",
      "Non ci sono lanci di dadi da stampare."};
  SixTexts AskToClosePopup = {
      "Would you like to close the pop-up roll file?",
      "¿Desea cerrar el archivo emergente de tiradas?",
      "Möchten Sie die Popup-Wurfdatei schließen?",
      "Voulez-vous fermer le fichier de lancers pop-up ?",
      "Açilir atis dosyasini kapatmak istiyor musunuz?",
      "Chiudere il file di lanci pop-up?"};
  SixTexts PlaybackStopped = {
      "Playback stopped.\rRewind for playback?",
      "Reproducción detenida.\r¿Rebobinar para reproducir?",
      "Wiedergabe gestoppt.\rZur Wiedergabe zurückspulen?",
      "Lecture arrêtée.\rRembobiner pour la lecture ?",
      "Oynatma durdu.\rOynatmak için basa sarilsin mi?",
      "Riproduzione fermata.\rRiavvolgere per la riproduzione?"};
  SixTexts RecordingStopped = {
      "Recording stopped.\rRewind for playback?",
      "Grabación detenida.\r¿Rebobinar para reproducir?",
      "Aufzeichnung gestoppt.\rZur Wiedergabe zurückspulen?",
      "Enregistrement arrêté.\rRembobiner pour la lecture ?",
      "Kayit durdu.\rOynatmak için basa sarilsin mi?",
      "Registrazione fermata.\rRiavvolgere per la riproduzione?"};

  // Probabilities.
  SixTexts NothingToDraw = {
      "No dice can be drawn from the probability matrix.",
      "No se pueden sacar dados de la matriz de probabilidades.",
      "Aus der Wahrscheinlichkeitsmatrix lassen sich keine Würfel ziehen.",
      "Aucun dé ne peut être tiré de la matrice de probabilités.",
      "Olasilik matrisinden zar çekilemiyor.",
      "Dalla matrice di probabilità non si può estrarre alcun dado."};
  SixTexts ShownAsPercentages = {
      "Shown as percentages",
      "Mostrado en porcentajes",
      "Angezeigt in Prozent",
      "Affiché en pourcentages",
      "Yüzde olarak gösterilir",
      "Mostrato in percentuali"};
  SixTexts ShownAsPercentagesFromTrue = {
      "Shown as +/- from true percentages",
      "Mostrado como +/- sobre los porcentajes reales",
      "Angezeigt als +/- zu den wahren Prozentwerten",
      "Affiché en +/- par rapport aux pourcentages réels",
      "Gerçek yüzdelerden +/- olarak gösterilir",
      "Mostrato come +/- rispetto alle percentuali reali"};
  SixTexts ShownAsRolls = {  // the count may follow
      "Shown as number of rolls out of ",
      "Mostrado como número de tiradas de un total de ",
      "Angezeigt als Anzahl der Würfe von ",
      "Affiché en nombre de lancers sur ",
      "Atis sayisi olarak gösterilir, toplam: ",
      "Mostrato come numero di lanci su "};
  SixTexts ShownAsRollsFromTrue = {
      "Shown as +/- from true number of rolls out of ",
      "Mostrado como +/- sobre el número real de tiradas de un total de ",
      "Angezeigt als +/- zur wahren Anzahl der Würfe von ",
      "Affiché en +/- par rapport au nombre réel de lancers sur ",
      "Gerçek atis sayisindan +/- olarak gösterilir, toplam: ",
      "Mostrato come +/- rispetto al numero reale di lanci su "};
  SixTexts FreeFormDice = {
      "Free Form Dice",
      "Dados de forma libre",
      "Frei geformte Würfel",
      "Dés de forme libre",
      "Serbest Biçimli Zarlar",
      "Dadi a forma libera"};
  SixTexts PercentageDice = {
      "Percentage Dice",
      "Dados por porcentajes",
      "Prozentwürfel",
      "Dés à pourcentages",
      "Yüzdeli Zarlar",
      "Dadi a percentuali"};
  SixTexts NotAProbabilityFile = {
      "This file is either from an older version, has been corrupted, or is not a true Tessarel Probability File.\r\r%1",
      "Este archivo es de una versión anterior, está dañado o no es un verdadero archivo de probabilidades de Tessarel.\r\r%1",
      "Diese Datei stammt aus einer älteren Version, ist beschädigt oder keine echte Wahrscheinlichkeitsdatei von Tessarel.\r\r%1",
      "Ce fichier provient d'une version antérieure, est endommagé ou n'est pas un véritable fichier de probabilités de Tessarel.\r\r%1",
      "Bu dosya eski bir sürümden, bozulmus veya gerçek bir Tessarel olasilik dosyasi degil.\r\r%1",
      "Questo file proviene da una versione precedente, è danneggiato o non è un vero file di probabilità di Tessarel.\r\r%1"};
  SixTexts CurrentNotSaved = {
      "Your current probabilities (listed on the 'Probability tab' of the configuration screen) have not been saved.\r\rDo you want to save them now?",
      "Las probabilidades actuales (en la ficha 'Probabilidad' de la pantalla de configuración) no se han guardado.\r\r¿Desea guardarlas ahora?",
      "Die aktuellen Wahrscheinlichkeiten (auf der Registerkarte 'Wahrscheinlichkeit' der Konfiguration) wurden nicht gespeichert.\r\rMöchten Sie sie jetzt speichern?",
      "Les probabilités actuelles (dans l'onglet 'Probabilité' de l'écran de configuration) n'ont pas été enregistrées.\r\rVoulez-vous les enregistrer maintenant ?",
      "Geçerli olasiliklar (yapilandirma ekraninin 'Olasilik' sekmesinde) kaydedilmedi.\r\rSimdi kaydetmek istiyor musunuz?",
      "Le probabilità correnti (nella scheda 'Probabilità' della schermata di configurazione) non sono state salvate.\r\rSalvarle adesso?"};
  SixTexts TheseNotSaved = {
      "These probabilities have not been saved.\r\rDo you want to save them now?",
      "Estas probabilidades no se han guardado.\r\r¿Desea guardarlas ahora?",
      "Diese Wahrscheinlichkeiten wurden nicht gespeichert.\r\rMöchten Sie sie jetzt speichern?",
      "Ces probabilités n'ont pas été enregistrées.\r\rVoulez-vous les enregistrer maintenant ?",
      "Bu olasiliklar kaydedilmedi.\r\rSimdi kaydetmek istiyor musunuz?",
      "Queste probabilità non sono state salvate.\r\rSalvarle adesso?"};
  SixTexts SaveProbabilities = {
      "Save Probabilities?",
      "¿Guardar las probabilidades?",
      "Wahrscheinlichkeiten speichern?",
      "Enregistrer les probabilités ?",
      "Olasiliklar Kaydedilsin mi?",
      "Salvare le probabilità?"};
};
// clang-format on

inline constexpr DiceTextTable DiceTexts{};

}  // namespace tessarel
