<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DecorativePictures</name>
    <message>
        <source>Unlock the Door to Future Possibilities</source>
        <translation>Abra la puerta a las posibilidades futuras</translation>
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
    <name>JournalChart</name>
    <message>
        <source>Nothing to show</source>
        <translation>No hay nada que mostrar</translation>
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
    <name>PasswordPrompts</name>
    <message>
        <source>Incorrect password. Access Denied.</source>
        <translation>Contraseña incorrecta. Acceso denegado.</translation>
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
</TS>
