<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AllowedDecks</name>
    <message>
        <source>The maximum number of decks allowed cannot exceed %1.</source>
        <translation>El número máximo de barajas permitidas no puede superar %1.</translation>
    </message>
</context>
<context>
    <name>CardScreen</name>
    <message>
        <source>Card Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Card Type:</source>
        <translation>Tipo de carta:</translation>
    </message>
    <message>
        <source> Position </source>
        <translation> Posición </translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>Al &amp;derecho</translation>
    </message>
    <message>
        <source>&amp;Reversed</source>
        <translation>&amp;Invertida</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Keywords:</source>
        <translation>Palabras clave:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
</context>
<context>
    <name>CardStore</name>
    <message>
        <source>The number of cards in a deck cannot exceed %1.</source>
        <translation>El número de cartas de una baraja no puede superar %1.</translation>
    </message>
    <message>
        <source>Please enter a title for this card.</source>
        <translation>Escriba un título para esta carta.</translation>
    </message>
    <message>
        <source>You already have a card with the same title. Please change the title.</source>
        <translation>Ya tiene una carta con el mismo título. Cambie el título.</translation>
    </message>
</context>
<context>
    <name>CardTypeNames</name>
    <message>
        <source>The names you chose for the types are not unique. Please change duplicate names.</source>
        <translation>Los nombres elegidos para los tipos se repiten. Cambie los nombres duplicados.</translation>
    </message>
</context>
<context>
    <name>ChartLayout</name>
    <message>
        <source>Nothing to show</source>
        <translation>No hay nada que mostrar</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 (%3 %4, %5 %6)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeckLoadQuestion</name>
    <message>
        <source>This deck is missing some pictures. Cannot continue loading.
Do you want to remove it?</source>
        <translation>A esta baraja le faltan algunas imágenes. No se puede seguir cargando.
¿Desea eliminarla?</translation>
    </message>
</context>
<context>
    <name>DeckNotesPanel</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Deck Notes</source>
        <translation>Notas de la baraja</translation>
    </message>
</context>
<context>
    <name>DeckPropertiesScreen</name>
    <message>
        <source>Deck Includes Reversed Cards</source>
        <translation>La baraja incluye cartas invertidas</translation>
    </message>
    <message>
        <source>Display Card Titles</source>
        <translation>Mostrar los títulos de las cartas</translation>
    </message>
    <message>
        <source>Type %1:</source>
        <translation>Tipo %1:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Deck Properties</source>
        <translation>Propiedades de la baraja</translation>
    </message>
</context>
<context>
    <name>DeckScreen</name>
    <message>
        <source>Deck Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>Diseñador:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>Web Page:</source>
        <translation>Página web:</translation>
    </message>
    <message>
        <source>Modified On:</source>
        <translation>Modificada:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Cards:</source>
        <translation>Cartas:</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propiedades</translation>
    </message>
    <message>
        <source>No&amp;tes</source>
        <translation>No&amp;tas</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
</context>
<context>
    <name>DeckStore</name>
    <message>
        <source>Error number %1.  %2</source>
        <translation>Error número %1.  %2</translation>
    </message>
    <message>
        <source>Please select a name to save the deck as.</source>
        <translation>Elija un nombre para guardar la baraja.</translation>
    </message>
    <message>
        <source>Deck already exists. Overwrite?</source>
        <translation>La baraja ya existe. ¿Desea sobrescribirla?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete deck &apos;%1&apos; ?
Be aware that this deck will be removed from all spreads that use it.</source>
        <translation>¿Seguro que desea eliminar la baraja &apos;%1&apos;?
Tenga en cuenta que la baraja se quitará de todas las tiradas que la usan.</translation>
    </message>
    <message>
        <source>At least one spread uses solely this deck. Further, any readings or diaries that
use this deck will not be able to be opened. Proceed anyway?</source>
        <translation>Al menos una tirada usa solo esta baraja. Además, las lecturas y diarios que
usan esta baraja ya no se podrán abrir. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Any readings or diaries using this deck will not be able to be opened.
Proceed anyway?</source>
        <translation>Las lecturas y diarios que usan esta baraja ya no se podrán abrir.
¿Desea continuar?</translation>
    </message>
</context>
<context>
    <name>DecorativePictures</name>
    <message>
        <source>Unlock the Door to Future Possibilities</source>
        <translation>Abra la puerta a las posibilidades futuras</translation>
    </message>
</context>
<context>
    <name>DiaryCards</name>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Llamada a procedimiento o argumento no válidos</translation>
    </message>
</context>
<context>
    <name>ErrorReport</name>
    <message>
        <source>Run-time error &apos;%1&apos;:

%2</source>
        <translation>Error en tiempo de ejecución &apos;%1&apos;:

%2</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>Bad record number</source>
        <translation>Número de registro incorrecto</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Subíndice fuera del intervalo</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Nombre o número de archivo incorrecto</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>No se encontró el archivo</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>El archivo ya existe</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Entrada más allá del final del archivo</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Error de acceso a ruta o archivo</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>No se encontró la ruta</translation>
    </message>
    <message>
        <source>Invalid picture</source>
        <translation>Imagen no válida</translation>
    </message>
    <message>
        <source>Cancel was selected.</source>
        <translation>Se seleccionó Cancelar.</translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation>Error definido por la aplicación o el objeto</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message>
        <source>Device unavailable</source>
        <translation>Dispositivo no disponible</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Drive:</source>
        <translation>Unidad:</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>Carpetas:</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation>Archivos:</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Seleccionar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>This device is currently unavailable!</source>
        <translation>¡Este dispositivo no está disponible en este momento!</translation>
    </message>
    <message>
        <source>Error in application. If this problem persists, please contact Ondine Software.</source>
        <translation>Error en la aplicación. Si el problema persiste, póngase en contacto con Ondine Software.</translation>
    </message>
</context>
<context>
    <name>FitPicture</name>
    <message>
        <source>Error while loading the picture. A default picture is selected instead.
Please save all your work, exit Cartomar, and then run it again</source>
        <translation>Error al cargar la imagen. Se usa en su lugar una imagen predeterminada.
Guarde todo su trabajo, salga de Cartomar y vuelva a iniciarlo</translation>
    </message>
    <message>
        <source>Error. Please contact Ondine Software Inc.</source>
        <translation>Error. Póngase en contacto con Ondine Software Inc.</translation>
    </message>
</context>
<context>
    <name>HelpPanel</name>
    <message>
        <source>1. The Present</source>
        <translation>1. El presente</translation>
    </message>
    <message>
        <source>The Star</source>
        <translation>La Estrella</translation>
    </message>
    <message>
        <source>Location Title</source>
        <translation>Título de la posición</translation>
    </message>
    <message>
        <source>Spread Location</source>
        <translation>Posición de la tirada</translation>
    </message>
    <message>
        <source>Card Image</source>
        <translation>Imagen de la carta</translation>
    </message>
    <message>
        <source>Card Title</source>
        <translation>Título de la carta</translation>
    </message>
    <message>
        <source>The Fool</source>
        <translation>El Loco</translation>
    </message>
    <message>
        <source>The Magician</source>
        <translation>El Mago</translation>
    </message>
    <message>
        <source>The High Priestess</source>
        <translation>La Sacerdotisa</translation>
    </message>
    <message>
        <source>The Empress</source>
        <translation>La Emperatriz</translation>
    </message>
    <message>
        <source>The Emperor</source>
        <translation>El Emperador</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Invertida</translation>
    </message>
    <message>
        <source>Cards List</source>
        <translation>Lista de cartas</translation>
    </message>
</context>
<context>
    <name>HelpPanelForm</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no longer installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Al derecho</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Invertida</translation>
    </message>
    <message>
        <source>Journal Statistics</source>
        <translation>Estadísticas del registro</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>Entradas: %1</translation>
    </message>
    <message>
        <source>Locked, not counted: %1</source>
        <translation>Bloqueadas, sin contar: %1</translation>
    </message>
    <message>
        <source>Not attributable to a present card: %1</source>
        <translation>Sin carta actual a la que atribuirlas: %1</translation>
    </message>
    <message>
        <source>Upright: %1    Reversed: %2</source>
        <translation>Al derecho: %1    Invertidas: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Cards That Came Up Most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entries per Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carta</translation>
    </message>
</context>
<context>
    <name>JournalCardsModel</name>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Al derecho</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Invertida</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Baraja</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
</context>
<context>
    <name>JournalLocationsModel</name>
    <message>
        <source>Location</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Cards Most Often There</source>
        <translation>Cartas más frecuentes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JournalResultsModel</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Tirada</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Baraja</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Cartas</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Diary</source>
        <translation>Diario</translation>
    </message>
    <message>
        <source>Locked: open it and give its password to see it</source>
        <translation>Bloqueada: ábrala y escriba su contraseña para verla</translation>
    </message>
</context>
<context>
    <name>LocationAttributesForm</name>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Question %1:</source>
        <translation>Pregunta %1:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Location Attriubtes - Location number %1</source>
        <translation>Atributos de la posición - Posición número %1</translation>
    </message>
</context>
<context>
    <name>MDIMainForm</name>
    <message>
        <source>Cartomar - Unlock the Door to Future Possibilities</source>
        <translation>Cartomar - Abra la puerta a las posibilidades futuras</translation>
    </message>
    <message>
        <source>Are you sure you want to EXIT Cartomar?</source>
        <translation>¿Seguro que desea SALIR de Cartomar?</translation>
    </message>
    <message>
        <source>Cartomar</source>
        <translation>Cartomar</translation>
    </message>
</context>
<context>
    <name>MediaPlayer</name>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>Cartomar</source>
        <translation>Cartomar</translation>
    </message>
</context>
<context>
    <name>PackageInstallation</name>
    <message>
        <source>Unable to install: Damaged Cartomar Package.
%1</source>
        <translation>No se puede instalar: paquete de Cartomar dañado.
%1</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; names the file &apos;%2&apos;, which the package does not hold.</source>
        <translation>La baraja &apos;%1&apos; nombra el archivo &apos;%2&apos;, que el paquete no contiene.</translation>
    </message>
    <message>
        <source>The card &apos;%1&apos; names the file &apos;%2&apos;, which the package does not hold.</source>
        <translation>La carta &apos;%1&apos; nombra el archivo &apos;%2&apos;, que el paquete no contiene.</translation>
    </message>
    <message>
        <source>The spread &apos;%1&apos; names the file &apos;%2&apos;, which the package does not hold.</source>
        <translation>La tirada &apos;%1&apos; nombra el archivo &apos;%2&apos;, que el paquete no contiene.</translation>
    </message>
    <message>
        <source>The location &apos;%1&apos; names the file &apos;%2&apos;, which the package does not hold.</source>
        <translation>La posición &apos;%1&apos; nombra el archivo &apos;%2&apos;, que el paquete no contiene.</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; claims %2 cards, which no deck can hold.</source>
        <translation>La baraja &apos;%1&apos; declara %2 cartas, más de las que cabe en una baraja.</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; would be installed without its cards.</source>
        <translation>La baraja &apos;%1&apos; se instalaría sin sus cartas.</translation>
    </message>
    <message>
        <source>The decks &apos;%1&apos; and &apos;%2&apos; would share their cards.</source>
        <translation>Las barajas &apos;%1&apos; y &apos;%2&apos; compartirían sus cartas.</translation>
    </message>
    <message>
        <source>A card of the package belongs to none of its decks.</source>
        <translation>Una carta del paquete no pertenece a ninguna de sus barajas.</translation>
    </message>
    <message numerus="yes">
        <source>The deck &apos;%1&apos; claims %n cards, but the package holds %2 of them.</source>
        <translation>
            <numerusform>La baraja &apos;%1&apos; declara %n carta, pero el paquete contiene %2.</numerusform>
            <numerusform>La baraja &apos;%1&apos; declara %n cartas, pero el paquete contiene %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>The card &apos;%1&apos; has an unknown card type.</source>
        <translation>La carta &apos;%1&apos; tiene un tipo de carta desconocido.</translation>
    </message>
    <message>
        <source>The spread &apos;%1&apos; claims %2 locations, which no spread can hold.</source>
        <translation>La tirada &apos;%1&apos; declara %2 posiciones, más de las que cabe en una tirada.</translation>
    </message>
    <message>
        <source>The spread &apos;%1&apos; names %2 decks, which no spread can.</source>
        <translation>La tirada &apos;%1&apos; nombra %2 barajas, más de las que admite una tirada.</translation>
    </message>
    <message>
        <source>The spreads &apos;%1&apos; and &apos;%2&apos; would share their locations.</source>
        <translation>Las tiradas &apos;%1&apos; y &apos;%2&apos; compartirían sus posiciones.</translation>
    </message>
    <message>
        <source>A location of the package belongs to none of its spreads.</source>
        <translation>Una posición del paquete no pertenece a ninguna de sus tiradas.</translation>
    </message>
    <message>
        <source>The locations of the spread &apos;%1&apos; do not agree with its count of %2.</source>
        <translation>Las posiciones de la tirada &apos;%1&apos; no coinciden con su número de %2.</translation>
    </message>
    <message>
        <source>Bad record number</source>
        <translation>Número de registro incorrecto</translation>
    </message>
</context>
<context>
    <name>PackageSummaryScreen</name>
    <message>
        <source>Decks:</source>
        <translation>Barajas:</translation>
    </message>
    <message>
        <source>Spreads:</source>
        <translation>Tiradas:</translation>
    </message>
    <message>
        <source>Attachment:</source>
        <translation>Adjunto:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>NINGUNO</translation>
    </message>
</context>
<context>
    <name>PasswordPrompts</name>
    <message>
        <source>Incorrect password. Access Denied.</source>
        <translation>Contraseña incorrecta. Acceso denegado.</translation>
    </message>
</context>
<context>
    <name>PictureImport</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SpreadBackground</name>
    <message>
        <source>There is no file with the name you provided!</source>
        <translation>¡No hay ningún archivo con el nombre indicado!</translation>
    </message>
    <message>
        <source>Unsupported file type. Only files of type BMP, JPG and GIF are currently supported.</source>
        <translation>Tipo de archivo no admitido. Por ahora solo se admiten archivos BMP, JPG y GIF.</translation>
    </message>
    <message>
        <source>Unable to open the file you selected. Please make sure it is of a valid type.</source>
        <translation>No se puede abrir el archivo elegido. Compruebe que es de un tipo válido.</translation>
    </message>
</context>
<context>
    <name>SpreadCanvas</name>
    <message>
        <source>Attributes</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Hide &amp;Grid</source>
        <translation>Ocultar &amp;rejilla</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>Ver &amp;rejilla</translation>
    </message>
</context>
<context>
    <name>SpreadDetailsPage</name>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notas:</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>Diseñador:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>Web Page:</source>
        <translation>Página web:</translation>
    </message>
    <message>
        <source>Question or Query</source>
        <translation>Pregunta o consulta</translation>
    </message>
    <message>
        <source>Modified On:</source>
        <translation>Modificada:</translation>
    </message>
</context>
<context>
    <name>SpreadStore</name>
    <message>
        <source>Please select a name to save the spread as.</source>
        <translation>Elija un nombre para guardar la tirada.</translation>
    </message>
    <message>
        <source>Spread already exists. Overwrite?</source>
        <translation>La tirada ya existe. ¿Desea sobrescribirla?</translation>
    </message>
    <message>
        <source>Unable to find this spread. Please &apos;close&apos; and select another spread.</source>
        <translation>No se encuentra esta tirada. Pulse &apos;Cerrar&apos; y elija otra tirada.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the currently selected background picture?</source>
        <translation>¿Seguro que desea quitar la imagen de fondo elegida?</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Cartomar Error. If this problem persists, please contact Ondine Software Inc.</source>
        <translation>Error de Cartomar. Si el problema persiste, póngase en contacto con Ondine Software Inc.</translation>
    </message>
    <message>
        <source>Cartomar is already running from the folder &apos;%1&apos;. Only one copy can work on the same designs at a time.</source>
        <translation>Cartomar ya se está ejecutando desde la carpeta &apos;%1&apos;. Solo una copia puede trabajar a la vez con los mismos diseños.</translation>
    </message>
    <message>
        <source>Unable to convert to new database format as existing backups exist.  Please reinstall in a new directory or contact %1.</source>
        <translation>No se puede convertir al nuevo formato de base de datos porque ya existen copias de seguridad.  Reinstale en una carpeta nueva o escriba a %1.</translation>
    </message>
    <message>
        <source>You don&apos;t have any designs installed. Do you want install any now?</source>
        <translation>No tiene ningún diseño instalado. ¿Desea instalar alguno ahora?</translation>
    </message>
</context>
<context>
    <name>frmAddCard</name>
    <message>
        <source>Add Card</source>
        <translation>Añadir carta</translation>
    </message>
    <message>
        <source>Click Here to Edit the Image</source>
        <translation>Haga clic aquí para editar la imagen</translation>
    </message>
    <message>
        <source>Edit &amp;Image</source>
        <translation>Editar i&amp;magen</translation>
    </message>
    <message>
        <source>Edit &amp;Sound</source>
        <translation>Editar &amp;sonido</translation>
    </message>
    <message>
        <source>&amp;Save-Close</source>
        <translation>&amp;Guardar-Cerrar</translation>
    </message>
    <message>
        <source>Save-&amp;New</source>
        <translation>Guardar-&amp;Nueva</translation>
    </message>
    <message>
        <source>Save changes to the card?</source>
        <translation>¿Desea guardar los cambios de la carta?</translation>
    </message>
</context>
<context>
    <name>frmBrowseDeck</name>
    <message>
        <source>Decks:</source>
        <translation>Barajas:</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Seleccionar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Browse Decks</source>
        <translation>Examinar barajas</translation>
    </message>
</context>
<context>
    <name>frmConvert</name>
    <message>
        <source>Cartomar Converter</source>
        <translation>Conversor de Cartomar</translation>
    </message>
    <message>
        <source>Cartomar detected an older database version.  Would you like to convert the old files to a new compatible version?  (Note that a *.bkp copies will be created of the old database files.)</source>
        <translation>Cartomar ha detectado una versión antigua de la base de datos.  ¿Desea convertir los archivos antiguos a una versión nueva compatible?  (Se crearán copias *.bkp de los archivos antiguos de la base de datos.)</translation>
    </message>
    <message>
        <source>Con&amp;vert</source>
        <translation>Con&amp;vertir</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>frmCreatePackage</name>
    <message>
        <source>Create Package</source>
        <translation>Crear paquete</translation>
    </message>
    <message>
        <source>Decks:</source>
        <translation>Barajas:</translation>
    </message>
    <message>
        <source>Spreads:</source>
        <translation>Tiradas:</translation>
    </message>
    <message>
        <source>Automatically select the decks a spread works with</source>
        <translation>Elegir también las barajas de cada tirada</translation>
    </message>
    <message>
        <source>Protect all designs with a password.</source>
        <translation>Proteger los diseños con una contraseña.</translation>
    </message>
    <message>
        <source>Attachment:</source>
        <translation>Adjunto:</translation>
    </message>
    <message>
        <source>&amp;Attach...</source>
        <translation>&amp;Adjuntar...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>C&amp;rear</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Cartomar Package - %1</source>
        <translation>Paquete de Cartomar - %1</translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*|HTML Files (*.htm)|*.htm|Document Files (*.doc)|*.doc|Text Files (*.txt)|*.txt</source>
        <translation>Todos los archivos (*.*)|*.*|Archivos HTML (*.htm)|*.htm|Documentos (*.doc)|*.doc|Archivos de texto (*.txt)|*.txt</translation>
    </message>
    <message>
        <source>Select Attachment</source>
        <translation>Elegir adjunto</translation>
    </message>
    <message>
        <source>There is no file with the name you provided!</source>
        <translation>¡No hay ningún archivo con el nombre indicado!</translation>
    </message>
    <message>
        <source>This device is currently unavailable!</source>
        <translation>¡Este dispositivo no está disponible en este momento!</translation>
    </message>
    <message>
        <source>This folder and its subfolders are solely for the use of Cartomar. Please select a different folder.</source>
        <translation>Esta carpeta y sus subcarpetas son de uso exclusivo de Cartomar. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>You have selected nothing to pack. Please select at least one design.</source>
        <translation>No ha elegido nada para empaquetar. Elija al menos un diseño.</translation>
    </message>
    <message>
        <source>Invalid FileName!
A valid filename cannot contain \, /, :, *, ?, &lt;, &gt; or |.</source>
        <translation>¡Nombre de archivo no válido!
Un nombre de archivo válido no puede contener \, /, :, *, ?, &lt;, &gt; ni |.</translation>
    </message>
    <message>
        <source>Package already exists. Overwrite?</source>
        <translation>El paquete ya existe. ¿Desea sobrescribirlo?</translation>
    </message>
    <message>
        <source>Unable to create package.  Error%1: %2</source>
        <translation>No se puede crear el paquete.  Error%1: %2</translation>
    </message>
    <message>
        <source>Some designs were intially protected. Their passwords cannot be replaced.
However, they will still be added to the package.</source>
        <translation>Algunos diseños ya estaban protegidos. Sus contraseñas no se pueden sustituir.
Aun así, se añadirán al paquete.</translation>
    </message>
    <message>
        <source>The selected attachment could not be copied because either it is in use or it has been removed from disk.</source>
        <translation>No se pudo copiar el adjunto elegido porque está en uso o se ha eliminado del disco.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel creating this package?</source>
        <translation>¿Seguro que desea cancelar la creación de este paquete?</translation>
    </message>
</context>
<context>
    <name>frmCreatePackageSummary</name>
    <message>
        <source>Package Summary - %1</source>
        <translation>Resumen del paquete - %1</translation>
    </message>
    <message>
        <source>Package Summary</source>
        <translation>Resumen del paquete</translation>
    </message>
    <message>
        <source>The package was successfully created.</source>
        <translation>El paquete se creó correctamente.</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ubicación:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Archivo:</translation>
    </message>
</context>
<context>
    <name>frmDeckCardProperties</name>
    <message>
        <source>Note: Don&apos;t forget to supply the reversed versions of the cards.
Unless you do so, you will not be able to use this deck.</source>
        <translation>Nota: no olvide aportar las versiones invertidas de las cartas.
Si no lo hace, no podrá usar esta baraja.</translation>
    </message>
</context>
<context>
    <name>frmDeckChooser</name>
    <message>
        <source>Decks Available</source>
        <translation>Barajas disponibles</translation>
    </message>
    <message>
        <source>&amp;Allow this spread to use all available decks</source>
        <translation>&amp;Permitir a esta tirada usar todas las barajas</translation>
    </message>
    <message>
        <source>Available Decks:</source>
        <translation>Barajas disponibles:</translation>
    </message>
    <message>
        <source>Spread works on the following Decks:</source>
        <translation>La tirada funciona con estas barajas:</translation>
    </message>
    <message>
        <source>Add &amp;&gt;&gt;</source>
        <translation>Añadir &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>&amp;&lt;&lt; Delete</source>
        <translation>&amp;&lt;&lt; Quitar</translation>
    </message>
    <message>
        <source>&amp;Install all spreads in the package with selected decks</source>
        <translation>&amp;Instalar todas las tiradas con las barajas elegidas</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Choose decks to work with spread: %1</source>
        <translation>Elija las barajas para la tirada: %1</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Save changes to the spread?</source>
        <translation>¿Desea guardar los cambios de la tirada?</translation>
    </message>
    <message>
        <source>No decks have been selected.  Are you sure you want to continue?</source>
        <translation>No se ha elegido ninguna baraja.  ¿Seguro que desea continuar?</translation>
    </message>
</context>
<context>
    <name>frmDeckInfo</name>
    <message>
        <source>Deck View</source>
        <translation>Vista de la baraja</translation>
    </message>
</context>
<context>
    <name>frmDecks</name>
    <message>
        <source>Decks:</source>
        <translation>Barajas:</translation>
    </message>
    <message>
        <source> Brief Info </source>
        <translation> Resumen </translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Modified On:</source>
        <translation>Modificada:</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>Diseñador:</translation>
    </message>
    <message>
        <source>Cards:</source>
        <translation>Cartas:</translation>
    </message>
    <message>
        <source>Cards List</source>
        <translation>Lista de cartas</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nueva</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Decks&apos; Menu</source>
        <translation>Menú de barajas</translation>
    </message>
</context>
<context>
    <name>frmDesignDeck</name>
    <message>
        <source>Deck Design</source>
        <translation>Diseño de la baraja</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Dele&amp;te</source>
        <translation>Elimi&amp;nar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Import Pictures...</source>
        <translation>&amp;Importar imágenes...</translation>
    </message>
    <message>
        <source>Are you sure you want to delete card &apos;%1&apos; ?</source>
        <translation>¿Seguro que desea eliminar la carta &apos;%1&apos;?</translation>
    </message>
    <message>
        <source>Import Pictures</source>
        <translation>Importar imágenes</translation>
    </message>
    <message>
        <source>Save changes to the deck?</source>
        <translation>¿Desea guardar los cambios de la baraja?</translation>
    </message>
</context>
<context>
    <name>frmDesignExists</name>
    <message>
        <source>Design Already Exists. What do you want to do?</source>
        <translation>El diseño ya existe. ¿Qué desea hacer?</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Sobrescribir</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>Overwrite &amp;All</source>
        <translation>Sobrescribir &amp;todos</translation>
    </message>
    <message>
        <source>S&amp;kip All</source>
        <translation>O&amp;mitir todos</translation>
    </message>
    <message>
        <source>Enter the new design name:</source>
        <translation>Escriba el nombre nuevo del diseño:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Card &apos;%1&apos; exists.</source>
        <translation>La carta &apos;%1&apos; ya existe.</translation>
    </message>
    <message>
        <source>Deck &apos;%1&apos; exists.</source>
        <translation>La baraja &apos;%1&apos; ya existe.</translation>
    </message>
    <message>
        <source>Spread &apos;%1&apos; exists.</source>
        <translation>La tirada &apos;%1&apos; ya existe.</translation>
    </message>
    <message>
        <source>You must enter a design name.</source>
        <translation>Debe escribir un nombre de diseño.</translation>
    </message>
    <message>
        <source>You already have a design with this name. Please enter a change the name or click &apos;Cancel&apos; to return to the previous page.</source>
        <translation>Ya tiene un diseño con este nombre. Cambie el nombre o haga clic en &apos;Cancelar&apos; para volver a la página anterior.</translation>
    </message>
</context>
<context>
    <name>frmDesignSpread</name>
    <message>
        <source>Spread Design</source>
        <translation>Diseño de la tirada</translation>
    </message>
    <message>
        <source>Available Decks:</source>
        <translation>Barajas disponibles:</translation>
    </message>
    <message>
        <source>Spread works on the following Decks:</source>
        <translation>La tirada funciona con estas barajas:</translation>
    </message>
    <message>
        <source>&amp;Allow this spread to use all available decks</source>
        <translation>&amp;Permitir a esta tirada usar todas las barajas</translation>
    </message>
    <message>
        <source>Add &amp;&gt;&gt;</source>
        <translation>Añadir &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>&amp;&lt;&lt; Delete</source>
        <translation>&amp;&lt;&lt; Quitar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>Sp&amp;read</source>
        <translation>T&amp;irada</translation>
    </message>
    <message>
        <source>Dec&amp;ks</source>
        <translation>Bara&amp;jas</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>Ver &amp;rejilla</translation>
    </message>
    <message>
        <source>S&amp;nap</source>
        <translation>A&amp;justar</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>Imag&amp;en</translation>
    </message>
    <message>
        <source>No&amp;tes</source>
        <translation>No&amp;tas</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Spread Design - %1</source>
        <translation>Diseño de la tirada - %1</translation>
    </message>
    <message>
        <source>The number of locations in a spread cannot exceed %1.</source>
        <translation>El número de posiciones de una tirada no puede superar %1.</translation>
    </message>
    <message>
        <source>There are no locations to be removed.</source>
        <translation>No hay posiciones que quitar.</translation>
    </message>
    <message>
        <source>Are you sure you want to completely remove location number %1 ?</source>
        <translation>¿Seguro que desea quitar por completo la posición número %1?</translation>
    </message>
    <message>
        <source>Don&apos;t S&amp;nap</source>
        <translation>No a&amp;justar</translation>
    </message>
    <message>
        <source>Are you sure you want to remove deck &apos;%1&apos; ?</source>
        <translation>¿Seguro que desea quitar la baraja &apos;%1&apos;?</translation>
    </message>
    <message>
        <source>Save changes to the spread?</source>
        <translation>¿Desea guardar los cambios de la tirada?</translation>
    </message>
</context>
<context>
    <name>frmDiaryHelp</name>
    <message>
        <source>Quick Help</source>
        <translation>Ayuda rápida</translation>
    </message>
    <message>
        <source>The Tarot Spread is meant to aid you in your everyday life.  Examine the spread as a whole and use the additional tools included on the spread to help you understand the meaning behind each card.  By double clicking on a card, you get the description of the specific spread location and the interpretation and keywords of the card itself if it has been selected. Furthermore, you can enlarge the card&apos;s picture for a closer view. The card is selected from the cards list and its state is specified by the check box.</source>
        <translation>La tirada de tarot está pensada para ayudarle en su vida diaria.  Observe la tirada en su conjunto y use las herramientas adicionales de la tirada para entender el significado de cada carta.  Al hacer doble clic en una carta, obtiene la descripción de esa posición de la tirada y la interpretación y las palabras clave de la carta, si ya se ha elegido. Además, puede ampliar la imagen de la carta para verla de cerca. La carta se elige en la lista de cartas y su estado se indica con la casilla.</translation>
    </message>
</context>
<context>
    <name>frmGetImageFile</name>
    <message>
        <source>Select Upright Image</source>
        <translation>Elegir imagen al derecho</translation>
    </message>
    <message>
        <source>Select Reversed Image</source>
        <translation>Elegir imagen invertida</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
</context>
<context>
    <name>frmGetPassword</name>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Confirmar contraseña</translation>
    </message>
</context>
<context>
    <name>frmGetSoundFile</name>
    <message>
        <source>Select Upright Sound</source>
        <translation>Elegir sonido al derecho</translation>
    </message>
    <message>
        <source>Select Reversed Sound</source>
        <translation>Elegir sonido invertido</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Reproducir sonido</translation>
    </message>
</context>
<context>
    <name>frmGetSpreadBackground</name>
    <message>
        <source>Set Spread Background</source>
        <translation>Fondo de la tirada</translation>
    </message>
    <message>
        <source>Picture file:</source>
        <translation>Archivo de imagen:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Stretch picture to fit</source>
        <translation>Estirar la imagen para ajustarla</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Bitmaps (*.bmp)|*.bmp|Joint Photographic Experts Group (*.jpg)|*.jpg|Graphics Interchange Format (*.gif)|*.gif|All Supported Types (*.bmp; *.jpg; *.gif)|*.bmp;*.jpg;*.gif</source>
        <translation>Mapas de bits (*.bmp)|*.bmp|Joint Photographic Experts Group (*.jpg)|*.jpg|Graphics Interchange Format (*.gif)|*.gif|Todos los tipos admitidos (*.bmp; *.jpg; *.gif)|*.bmp;*.jpg;*.gif</translation>
    </message>
    <message>
        <source>Select Background Picture</source>
        <translation>Elegir imagen de fondo</translation>
    </message>
</context>
<context>
    <name>frmHelpViewer</name>
    <message>
        <source>Cartomar Help</source>
        <translation>Ayuda de Cartomar</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>C&amp;ontenido</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>frmImportPictures</name>
    <message>
        <source>Import Pictures</source>
        <translation>Importar imágenes</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Reversed Side</source>
        <translation>Lado invertido</translation>
    </message>
    <message>
        <source>T&amp;ype of the selected cards:</source>
        <translation>T&amp;ipo de las cartas elegidas:</translation>
    </message>
    <message>
        <source>&amp;Set Type</source>
        <translation>&amp;Asignar tipo</translation>
    </message>
    <message>
        <source>&amp;None: the default picture</source>
        <translation>&amp;Ninguno: la imagen predeterminada</translation>
    </message>
    <message>
        <source>The same picture &amp;turned</source>
        <translation>La misma imagen &amp;girada</translation>
    </message>
    <message>
        <source>A &amp;file of its own, found by name</source>
        <translation>Un archivo &amp;propio, hallado por su nombre</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Not a picture, or cannot be read</source>
        <translation>No es una imagen o no se puede leer</translation>
    </message>
    <message>
        <source>turned</source>
        <translation>girada</translation>
    </message>
    <message>
        <source>none found</source>
        <translation>no encontrado</translation>
    </message>
    <message>
        <source>Importing pictures...</source>
        <translation>Importando imágenes...</translation>
    </message>
    <message>
        <source>These pictures could not be read and were not added: %1</source>
        <translation>Estas imágenes no se pudieron leer y no se añadieron: %1</translation>
    </message>
    <message>
        <source>%1
These cards were not added: %2</source>
        <translation>%1
Estas cartas no se añadieron: %2</translation>
    </message>
</context>
<context>
    <name>frmInstallPackage</name>
    <message>
        <source>Install Package</source>
        <translation>Instalar paquete</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>In&amp;fo</source>
        <translation>In&amp;formación</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>This device is currently unavailable!</source>
        <translation>¡Este dispositivo no está disponible en este momento!</translation>
    </message>
    <message>
        <source>Are you sure you want to delete package &apos;%1&apos; ?</source>
        <translation>¿Seguro que desea eliminar el paquete &apos;%1&apos;?</translation>
    </message>
    <message>
        <source>Unable to open package</source>
        <translation>No se puede abrir el paquete</translation>
    </message>
    <message>
        <source>Unable to install: Incompatible Cartomar Package.</source>
        <translation>No se puede instalar: paquete de Cartomar incompatible.</translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*|HTML Files (*.htm)|*.htm|Document Files (*.doc)|*.doc|Text Files (*.txt)|*.txt</source>
        <translation>Todos los archivos (*.*)|*.*|Archivos HTML (*.htm)|*.htm|Documentos (*.doc)|*.doc|Archivos de texto (*.txt)|*.txt</translation>
    </message>
    <message>
        <source>Save Attachment As</source>
        <translation>Guardar adjunto como</translation>
    </message>
</context>
<context>
    <name>frmJournal</name>
    <message>
        <source>Journal</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Either Way</source>
        <translation>Cualquiera</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Al derecho</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Invertida</translation>
    </message>
    <message>
        <source>Readings and Diaries</source>
        <translation>Lecturas y diarios</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Lecturas</translation>
    </message>
    <message>
        <source>Diaries</source>
        <translation>Diarios</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Desde:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Hasta:</translation>
    </message>
    <message>
        <source>&amp;Words:</source>
        <translation>Pa&amp;labras:</translation>
    </message>
    <message>
        <source>C&amp;ard:</source>
        <translation>C&amp;arta:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientación:</translation>
    </message>
    <message>
        <source>&amp;Spread:</source>
        <translation>&amp;Tirada:</translation>
    </message>
    <message>
        <source>&amp;Deck:</source>
        <translation>Bara&amp;ja:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>T&amp;ipo:</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Resultados</translation>
    </message>
    <message>
        <source>&amp;Cards</source>
        <translation>Carta&amp;s</translation>
    </message>
    <message>
        <source>&amp;Balance</source>
        <translation>E&amp;quilibrio</translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation>Posicio&amp;nes</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Meses</translation>
    </message>
    <message>
        <source>O&amp;pen</source>
        <translation>A&amp;brir</translation>
    </message>
    <message>
        <source>&amp;Export CSV...</source>
        <translation>E&amp;xportar CSV...</translation>
    </message>
    <message>
        <source>Save C&amp;hart...</source>
        <translation>&amp;Guardar gráfico...</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>Im&amp;primir...</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>(Any Card)</source>
        <translation>(Cualquier carta)</translation>
    </message>
    <message>
        <source>(Any Deck)</source>
        <translation>(Cualquier baraja)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Any Spread)</source>
        <translation>(Cualquier tirada)</translation>
    </message>
    <message>
        <source>%1; %2; %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln locked, not counted</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not attributable to a present card</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Export Results</source>
        <translation>Exportar resultados</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)|*.csv|All Files (*.*)|*.*</source>
        <translation>Archivos CSV (*.csv)|*.csv|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Journal.csv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Chart</source>
        <translation>Guardar gráfico</translation>
    </message>
    <message>
        <source>PNG Pictures (*.png)|*.png</source>
        <translation>Imágenes PNG (*.png)|*.png</translation>
    </message>
    <message>
        <source>Chart.png</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to save the chart as &apos;%1&apos;.</source>
        <translation>No se puede guardar el gráfico como &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unable to print! %1 %2</source>
        <translation>¡No se puede imprimir! %1 %2</translation>
    </message>
</context>
<context>
    <name>frmMainScreen</name>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Make a New Reading</source>
        <translation>Hacer una lectura nueva</translation>
    </message>
    <message>
        <source>Past</source>
        <translation>Anteriores</translation>
    </message>
    <message>
        <source>Open a Saved Reading</source>
        <translation>Abrir una lectura guardada</translation>
    </message>
    <message>
        <source>Decks</source>
        <translation>Barajas</translation>
    </message>
    <message>
        <source>Create, Edit or View Decks</source>
        <translation>Crear, editar o ver barajas</translation>
    </message>
    <message>
        <source>Spreads</source>
        <translation>Tiradas</translation>
    </message>
    <message>
        <source>Create, Edit, View or Manage Spreads</source>
        <translation>Crear, editar, ver o gestionar tiradas</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Install a Package</source>
        <translation>Instalar un paquete</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Create a New Package</source>
        <translation>Crear un paquete nuevo</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Search and Count Past Readings and Diaries</source>
        <translation>Buscar y contar lecturas y diarios anteriores</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Display Help</source>
        <translation>Mostrar la ayuda</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Exit Cartomar</source>
        <translation>Salir de Cartomar</translation>
    </message>
    <message>
        <source>Cartomar</source>
        <translation>Cartomar</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Lecturas</translation>
    </message>
    <message>
        <source>Diary</source>
        <translation>Diario</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquete</translation>
    </message>
    <message>
        <source>File Menu</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Unable to locate help file. The file is longer in the &apos;%1&apos; directory. Recopy the help file or reinstall Cartomar.</source>
        <translation>No se encuentra el archivo de ayuda. El archivo ya no está en la carpeta &apos;%1&apos;. Vuelva a copiar el archivo de ayuda o reinstale Cartomar.</translation>
    </message>
</context>
<context>
    <name>frmPackageInfo</name>
    <message>
        <source>Package Info</source>
        <translation>Información del paquete</translation>
    </message>
    <message>
        <source>Spreads:</source>
        <translation>Tiradas:</translation>
    </message>
    <message>
        <source>Decks:</source>
        <translation>Barajas:</translation>
    </message>
    <message>
        <source>Attachment:</source>
        <translation>Adjunto:</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>frmPackageSummary</name>
    <message>
        <source>Package Summary</source>
        <translation>Resumen del paquete</translation>
    </message>
    <message>
        <source>The package was successfully installed.</source>
        <translation>El paquete se instaló correctamente.</translation>
    </message>
    <message>
        <source>No elements of this package were installed.</source>
        <translation>No se instaló ningún elemento de este paquete.</translation>
    </message>
</context>
<context>
    <name>frmQuickHelp</name>
    <message>
        <source>Quick Help</source>
        <translation>Ayuda rápida</translation>
    </message>
    <message>
        <source>The Tarot Spread is meant to aid you in your everyday life.  Examine the spread as a whole and use the additional tools included on the spread to help you understand the meaning behind each card.  By clicking on a card, you get the description of the specific spread location and the interpretation and keywords of the card itself if it has been opened. Furthermore, you can enlarge the card&apos;s picture for a closer view.</source>
        <translation>La tirada de tarot está pensada para ayudarle en su vida diaria.  Observe la tirada en su conjunto y use las herramientas adicionales de la tirada para entender el significado de cada carta.  Al hacer clic en una carta, obtiene la descripción de esa posición de la tirada y la interpretación y las palabras clave de la carta, si ya se ha descubierto. Además, puede ampliar la imagen de la carta para verla de cerca.</translation>
    </message>
</context>
<context>
    <name>frmSaveDeck</name>
    <message>
        <source>Save As:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Saved Decks:</source>
        <translation>Barajas guardadas:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Save Deck</source>
        <translation>Guardar baraja</translation>
    </message>
</context>
<context>
    <name>frmSaveSpread</name>
    <message>
        <source>Save Spread</source>
        <translation>Guardar tirada</translation>
    </message>
    <message>
        <source>Save spread as:</source>
        <translation>Guardar tirada como:</translation>
    </message>
    <message>
        <source>Saved spreads:</source>
        <translation>Tiradas guardadas:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>frmSetPassword</name>
    <message>
        <source>Enter Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Confirm Password:</source>
        <translation>Confírmela:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Set Password</source>
        <translation>Establecer contraseña</translation>
    </message>
    <message>
        <source>The two passwords do not match.</source>
        <translation>Las dos contraseñas no coinciden.</translation>
    </message>
</context>
<context>
    <name>frmSpreadComments</name>
    <message>
        <source>Spread Notes</source>
        <translation>Notas de la tirada</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>frmSpreadInfo</name>
    <message>
        <source>View Spread</source>
        <translation>Ver tirada</translation>
    </message>
    <message>
        <source>Spread works on the following Decks:</source>
        <translation>La tirada funciona con estas barajas:</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>Sp&amp;read</source>
        <translation>T&amp;irada</translation>
    </message>
    <message>
        <source>Dec&amp;ks</source>
        <translation>Bara&amp;jas</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>Ver &amp;rejilla</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Spread View</source>
        <translation>Vista de la tirada</translation>
    </message>
    <message>
        <source>Spread View - %1</source>
        <translation>Vista de la tirada - %1</translation>
    </message>
    <message>
        <source>                          [ ALL DECKS ] </source>
        <translation>                          [ TODAS LAS BARAJAS ] </translation>
    </message>
    <message>
        <source>     [ MISSING DECK ] </source>
        <translation>     [ BARAJA AUSENTE ] </translation>
    </message>
</context>
<context>
    <name>frmSpreads</name>
    <message>
        <source>Spreads&apos; Menu</source>
        <translation>Menú de tiradas</translation>
    </message>
    <message>
        <source>Available Spreads:</source>
        <translation>Tiradas disponibles:</translation>
    </message>
    <message>
        <source> Brief Info </source>
        <translation> Resumen </translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>Diseñador:</translation>
    </message>
    <message>
        <source>Modified On:</source>
        <translation>Modificada:</translation>
    </message>
    <message>
        <source>Decks:</source>
        <translation>Barajas:</translation>
    </message>
    <message>
        <source>Cards:</source>
        <translation>Cartas:</translation>
    </message>
    <message>
        <source>Query:</source>
        <translation>Pregunta:</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nueva</translation>
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
        <source>&amp;Manage</source>
        <translation>&amp;Gestionar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>S</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Are you sure you want to delete spread &apos;%1&apos; ?</source>
        <translation>¿Seguro que desea eliminar la tirada &apos;%1&apos;?</translation>
    </message>
</context>
<context>
    <name>frmViewCard</name>
    <message>
        <source>View Card</source>
        <translation>Ver carta</translation>
    </message>
</context>
</TS>
