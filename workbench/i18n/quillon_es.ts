<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>Start an empty dictionary</source>
        <translation>Empezar un diccionario vacío</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open a dictionary file</source>
        <translation>Abrir un archivo de diccionario</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save the dictionary</source>
        <translation>Guardar el diccionario</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>Save the dictionary under another name</source>
        <translation>Guardar el diccionario con otro nombre</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;vertir</translation>
    </message>
    <message>
        <source>Go back to the dictionary as it was saved</source>
        <translation>Volver al diccionario tal como se guardó</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Leave the workbench</source>
        <translation>Salir de Quillon Workbench</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Type into the filter of the variable table</source>
        <translation>Escribir en el filtro de la tabla de variables</translation>
    </message>
    <message>
        <source>&amp;Add Entity</source>
        <translation>&amp;Añadir entidad</translation>
    </message>
    <message>
        <source>Add an entity below the current one</source>
        <translation>Añadir una entidad debajo de la actual</translation>
    </message>
    <message>
        <source>&amp;Duplicate Entity</source>
        <translation>&amp;Duplicar entidad</translation>
    </message>
    <message>
        <source>Add a copy of the entity with everything below it</source>
        <translation>Añadir una copia de la entidad con todo lo que contiene</translation>
    </message>
    <message>
        <source>Re&amp;name Entity</source>
        <translation>Cambiar &amp;nombre de la entidad</translation>
    </message>
    <message>
        <source>Edit the entity&apos;s name</source>
        <translation>Editar el nombre de la entidad</translation>
    </message>
    <message>
        <source>&amp;Remove Entity</source>
        <translation>&amp;Eliminar entidad</translation>
    </message>
    <message>
        <source>Remove the entity with everything below it</source>
        <translation>Eliminar la entidad con todo lo que contiene</translation>
    </message>
    <message>
        <source>Move Entity &amp;Up</source>
        <translation>&amp;Subir entidad</translation>
    </message>
    <message>
        <source>Move the entity before the one above it</source>
        <translation>Mover la entidad delante de la anterior</translation>
    </message>
    <message>
        <source>Move Entity Do&amp;wn</source>
        <translation>&amp;Bajar entidad</translation>
    </message>
    <message>
        <source>Move the entity after the one below it</source>
        <translation>Mover la entidad detrás de la siguiente</translation>
    </message>
    <message>
        <source>&amp;Add Variable</source>
        <translation>&amp;Añadir variable</translation>
    </message>
    <message>
        <source>Add a variable to the entity</source>
        <translation>Añadir una variable a la entidad</translation>
    </message>
    <message>
        <source>&amp;Duplicate Variables</source>
        <translation>&amp;Duplicar variables</translation>
    </message>
    <message>
        <source>Add copies of the selected variables</source>
        <translation>Añadir copias de las variables seleccionadas</translation>
    </message>
    <message>
        <source>&amp;Remove Variables</source>
        <translation>&amp;Eliminar variables</translation>
    </message>
    <message>
        <source>Remove the selected variables</source>
        <translation>Eliminar las variables seleccionadas</translation>
    </message>
    <message>
        <source>Move Variables &amp;Up</source>
        <translation>&amp;Subir variables</translation>
    </message>
    <message>
        <source>Move the selected variables up in the entity&apos;s order</source>
        <translation>Subir las variables seleccionadas en el orden de la entidad</translation>
    </message>
    <message>
        <source>Move Variables Do&amp;wn</source>
        <translation>&amp;Bajar variables</translation>
    </message>
    <message>
        <source>Move the selected variables down in the entity&apos;s order</source>
        <translation>Bajar las variables seleccionadas en el orden de la entidad</translation>
    </message>
    <message>
        <source>Use as Reference &amp;Code</source>
        <translation>Usar como &amp;código de referencia</translation>
    </message>
    <message>
        <source>Make the variable the entity&apos;s reference code, or stop it</source>
        <translation>Hacer de la variable el código de referencia de la entidad, o dejar de usarla así</translation>
    </message>
    <message>
        <source>Use as Reference &amp;Label</source>
        <translation>Usar como e&amp;tiqueta de referencia</translation>
    </message>
    <message>
        <source>Make the variable the entity&apos;s reference label, or stop it</source>
        <translation>Hacer de la variable la etiqueta de referencia de la entidad, o dejar de usarla así</translation>
    </message>
    <message>
        <source>Make the variable the entity&apos;s weight, or stop it</source>
        <translation>Hacer de la variable la ponderación de la entidad, o dejar de usarla así</translation>
    </message>
    <message>
        <source>Report Duplicated &amp;Names</source>
        <translation>Informar de &amp;nombres duplicados</translation>
    </message>
    <message>
        <source>List the variables of the entity that share a name</source>
        <translation>Listar las variables de la entidad que comparten nombre</translation>
    </message>
    <message>
        <source>Add Value &amp;Label</source>
        <translation>Añadir &amp;etiqueta de valor</translation>
    </message>
    <message>
        <source>Add a value label to the variable</source>
        <translation>Añadir una etiqueta de valor a la variable</translation>
    </message>
    <message>
        <source>Remove Value Labels</source>
        <translation>Eliminar etiquetas de valor</translation>
    </message>
    <message>
        <source>Remove the selected value labels</source>
        <translation>Eliminar las etiquetas de valor seleccionadas</translation>
    </message>
    <message>
        <source>Move Value Labels Up</source>
        <translation>Subir etiquetas de valor</translation>
    </message>
    <message>
        <source>Move the selected value labels up</source>
        <translation>Subir las etiquetas de valor seleccionadas</translation>
    </message>
    <message>
        <source>Move Value Labels Down</source>
        <translation>Bajar etiquetas de valor</translation>
    </message>
    <message>
        <source>Move the selected value labels down</source>
        <translation>Bajar las etiquetas de valor seleccionadas</translation>
    </message>
    <message>
        <source>Add &amp;Range</source>
        <translation>Añadir &amp;rango</translation>
    </message>
    <message>
        <source>Add a range of valid values to the variable</source>
        <translation>Añadir a la variable un rango de valores válidos</translation>
    </message>
    <message>
        <source>Remove Ranges</source>
        <translation>Eliminar rangos</translation>
    </message>
    <message>
        <source>Remove the selected ranges</source>
        <translation>Eliminar los rangos seleccionados</translation>
    </message>
    <message>
        <source>Move Ranges Up</source>
        <translation>Subir rangos</translation>
    </message>
    <message>
        <source>Move the selected ranges up</source>
        <translation>Subir los rangos seleccionados</translation>
    </message>
    <message>
        <source>Move Ranges Down</source>
        <translation>Bajar rangos</translation>
    </message>
    <message>
        <source>Move the selected ranges down</source>
        <translation>Bajar los rangos seleccionados</translation>
    </message>
    <message>
        <source>Open &amp;Dataset…</source>
        <translation>Abrir conjunto de &amp;datos…</translation>
    </message>
    <message>
        <source>List the fields of a data file</source>
        <translation>Listar los campos de un archivo de datos</translation>
    </message>
    <message>
        <source>Open &amp;CSV File…</source>
        <translation>Abrir archivo &amp;CSV…</translation>
    </message>
    <message>
        <source>List the fields of a CSV file</source>
        <translation>Listar los campos de un archivo CSV</translation>
    </message>
    <message>
        <source>Open &amp;Lookups…</source>
        <translation>Abrir tablas de con&amp;sulta…</translation>
    </message>
    <message>
        <source>List the lookup tables of a CSV file</source>
        <translation>Listar las tablas de consulta de un archivo CSV</translation>
    </message>
    <message>
        <source>Add Selected Fields to &amp;Entity</source>
        <translation>Añadir los campos seleccionados a la &amp;entidad</translation>
    </message>
    <message>
        <source>Make a variable of each selected field, as dragging them onto the table does</source>
        <translation>Hacer una variable de cada campo seleccionado, como al arrastrarlos a la tabla</translation>
    </message>
    <message>
        <source>&amp;Check Now</source>
        <translation>&amp;Comprobar ahora</translation>
    </message>
    <message>
        <source>Look for what is wrong in the dictionary</source>
        <translation>Buscar lo que está mal en el diccionario</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>Problema &amp;siguiente</translation>
    </message>
    <message>
        <source>Go to the place of the next problem</source>
        <translation>Ir al lugar del problema siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>Problema &amp;anterior</translation>
    </message>
    <message>
        <source>Go to the place of the problem before</source>
        <translation>Ir al lugar del problema anterior</translation>
    </message>
    <message>
        <source>Build &amp;Expression…</source>
        <translation>Crear &amp;expresión…</translation>
    </message>
    <message>
        <source>Put an expression together from entities, variables and categories</source>
        <translation>Componer una expresión con entidades, variables y categorías</translation>
    </message>
    <message>
        <source>Select &amp;Areas…</source>
        <translation>Seleccionar á&amp;reas…</translation>
    </message>
    <message>
        <source>Select area units of a file</source>
        <translation>Seleccionar unidades de área de un archivo</translation>
    </message>
    <message>
        <source>&amp;About Quillon Workbench</source>
        <translation>&amp;Acerca de Quillon Workbench</translation>
    </message>
    <message>
        <source>Show version and licences</source>
        <translation>Mostrar la versión y las licencias</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>E&amp;ntity</source>
        <translation>E&amp;ntidad</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>&amp;Variable</translation>
    </message>
    <message>
        <source>Va&amp;lues</source>
        <translation>Va&amp;lores</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>&amp;Fuentes</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>Ve&amp;r</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Main Tool Bar</source>
        <translation>Barra de herramientas principal</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy the selected rows, for a spreadsheet or another table</source>
        <translation>Copiar las filas seleccionadas, para una hoja de cálculo u otra tabla</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Paste rows of a spreadsheet or of another table</source>
        <translation>Pegar filas de una hoja de cálculo o de otra tabla</translation>
    </message>
    <message>
        <source>Use as Wei&amp;ght</source>
        <translation>Usar como &amp;ponderación</translation>
    </message>
    <message>
        <source>New &amp;Run Configuration…</source>
        <translation>Nueva configuración de e&amp;jecución…</translation>
    </message>
    <message>
        <source>Say which entities and variables take part in a run</source>
        <translation>Indicar qué entidades y variables participan en una ejecución</translation>
    </message>
    <message>
        <source>&amp;Open Run Configuration…</source>
        <translation>Abrir configuración de ejec&amp;ución…</translation>
    </message>
    <message>
        <source>Change a run configuration that was saved</source>
        <translation>Cambiar una configuración de ejecución guardada</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>Find names, labels and codes in the whole dictionary</source>
        <translation>Buscar nombres, etiquetas y códigos en todo el diccionario</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>Go to the next place that was found</source>
        <translation>Ir al siguiente lugar encontrado</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <source>Go to the place that was found before</source>
        <translation>Ir al lugar encontrado anterior</translation>
    </message>
    <message>
        <source>Fi&amp;lter Variables</source>
        <translation>&amp;Filtrar variables</translation>
    </message>
    <message>
        <source>&amp;Edit Variables Together…</source>
        <translation>Editar variables &amp;juntas…</translation>
    </message>
    <message>
        <source>Edit properties of all selected variables at once</source>
        <translation>Editar a la vez propiedades de todas las variables seleccionadas</translation>
    </message>
    <message>
        <source>Copy Values &amp;To…</source>
        <translation>C&amp;opiar valores a…</translation>
    </message>
    <message>
        <source>Copy value labels, ranges and missing codes to other variables</source>
        <translation>Copiar etiquetas de valor, rangos y códigos de valor perdido a otras variables</translation>
    </message>
    <message>
        <source>Identical Label &amp;Sets…</source>
        <translation>Conjuntos de etiquetas &amp;iguales…</translation>
    </message>
    <message>
        <source>Edit value labels that several variables share</source>
        <translation>Editar etiquetas de valor que comparten varias variables</translation>
    </message>
    <message>
        <source>Re&amp;cover Unsaved Changes…</source>
        <translation>&amp;Recuperar cambios sin guardar…</translation>
    </message>
    <message>
        <source>Look for changes that were not saved before the workbench ended</source>
        <translation>Buscar cambios que no se guardaron antes de que terminara el programa</translation>
    </message>
    <message>
        <source>&amp;Next Pane</source>
        <translation>Panel &amp;siguiente</translation>
    </message>
    <message>
        <source>Go on with the keyboard in the next part of the window</source>
        <translation>Seguir con el teclado en la parte siguiente de la ventana</translation>
    </message>
    <message>
        <source>&amp;Previous Pane</source>
        <translation>Panel &amp;anterior</translation>
    </message>
    <message>
        <source>Go back with the keyboard to the part of the window before</source>
        <translation>Volver con el teclado a la parte anterior de la ventana</translation>
    </message>
    <message>
        <source>Move Entity &amp;To…</source>
        <translation>&amp;Mover entidad a…</translation>
    </message>
    <message>
        <source>Move the entity with everything below it to another place in the tree</source>
        <translation>Mover la entidad con todo lo que tiene debajo a otro lugar del árbol</translation>
    </message>
    <message>
        <source>Move Variables &amp;To…</source>
        <translation>&amp;Mover variables a…</translation>
    </message>
    <message>
        <source>Move the selected variables to another entity</source>
        <translation>Mover las variables seleccionadas a otra entidad</translation>
    </message>
</context>
<context>
    <name>AreaSelectionDialog</name>
    <message>
        <source>Select Areas</source>
        <translation>Seleccionar áreas</translation>
    </message>
    <message>
        <source>Areas that have no others below them are counted</source>
        <translation>Se cuentan las áreas que no contienen otras</translation>
    </message>
    <message>
        <source>&amp;Open File…</source>
        <translation>&amp;Abrir archivo…</translation>
    </message>
    <message>
        <source>Filter areas by code or name</source>
        <translation>Filtrar áreas por código o nombre</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtro:</translation>
    </message>
    <message>
        <source>Show co&amp;des</source>
        <translation>Mostrar có&amp;digos</translation>
    </message>
    <message>
        <source>Show the code of an area in place of its first text</source>
        <translation>Mostrar el código de un área en lugar de su primer texto</translation>
    </message>
    <message>
        <source>Show &amp;names</source>
        <translation>Mostrar &amp;nombres</translation>
    </message>
    <message>
        <source>Show the name of an area before its texts</source>
        <translation>Mostrar el nombre de un área delante de sus textos</translation>
    </message>
    <message>
        <source>Open a CSV file with the columns “code”, “parent” and “name” to select areas of it.</source>
        <translation>Abra un archivo CSV con las columnas «code», «parent» y «name» para seleccionar áreas de él.</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Áreas</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>&amp;Expandir todo</translation>
    </message>
    <message>
        <source>Co&amp;llapse All</source>
        <translation>&amp;Contraer todo</translation>
    </message>
    <message>
        <source>Selec&amp;t None</source>
        <translation>&amp;Quitar la selección</translation>
    </message>
    <message>
        <source>Co&amp;py Codes</source>
        <translation>Co&amp;piar códigos</translation>
    </message>
    <message>
        <source>Copy the codes of the selected areas; an area stands for all below it</source>
        <translation>Copiar los códigos de las áreas seleccionadas; un área representa a todas las que contiene</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>&amp;Guardar como CSV…</translation>
    </message>
    <message>
        <source>Write the selected areas to a file; an area stands for all below it</source>
        <translation>Escribir las áreas seleccionadas en un archivo; un área representa a todas las que contiene</translation>
    </message>
    <message>
        <source>Areas selected: %L1 of %L2</source>
        <translation>Áreas seleccionadas: %L1 de %L2</translation>
    </message>
    <message>
        <source>All areas</source>
        <translation>Todas las áreas</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>No se puede escribir «%1».</translation>
    </message>
    <message>
        <source>Open Area Units</source>
        <translation>Abrir unidades de área</translation>
    </message>
    <message>
        <source>Save Selected Areas</source>
        <translation>Guardar las áreas seleccionadas</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>Archivos CSV (*.csv)</translation>
    </message>
    <message>
        <source>No area matches the filter.</source>
        <translation>Ninguna área coincide con el filtro.</translation>
    </message>
</context>
<context>
    <name>AreaUnitFile</name>
    <message>
        <source>No column is called &quot;code&quot;.</source>
        <translation>Ninguna columna se llama «code».</translation>
    </message>
    <message>
        <source>The code is empty.</source>
        <translation>El código está vacío.</translation>
    </message>
    <message>
        <source>The code &quot;%1&quot; stands in line %2 too.</source>
        <translation>El código «%1» está también en la línea %2.</translation>
    </message>
    <message>
        <source>The parent &quot;%1&quot; of &quot;%2&quot; is not in the file.</source>
        <translation>La unidad superior «%1» de «%2» no está en el archivo.</translation>
    </message>
    <message>
        <source>The unit lies below itself: %1.</source>
        <translation>La unidad está debajo de sí misma: %1.</translation>
    </message>
</context>
<context>
    <name>CheckCommands</name>
    <message>
        <source>Looking for problems…</source>
        <translation>Buscando problemas…</translation>
    </message>
</context>
<context>
    <name>ClipboardCommands</name>
    <message>
        <source>Pasting…</source>
        <translation>Pegando…</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Nothing was pasted.</source>
        <translation>No se pegó nada.</translation>
    </message>
    <message>
        <source>Pasted rows: %L1. Not everything could be taken over:</source>
        <translation>Filas pegadas: %L1. No se pudo tomar todo:</translation>
    </message>
    <message>
        <source>There are %L1 more; the details list them all.</source>
        <translation>Hay %L1 más; los detalles las enumeran todas.</translation>
    </message>
</context>
<context>
    <name>ClipboardTable</name>
    <message>
        <source>Select a variable to paste into.</source>
        <translation>Seleccione una variable en la que pegar.</translation>
    </message>
    <message>
        <source>pasting a row</source>
        <translation>pegar una fila</translation>
    </message>
    <message>
        <source>pasting %L1 rows</source>
        <translation>pegar %L1 filas</translation>
    </message>
    <message>
        <source>%1 into %2</source>
        <translation>%1 en %2</translation>
    </message>
</context>
<context>
    <name>Codebook</name>
    <message>
        <source>Codebook</source>
        <translation>Libro de códigos</translation>
    </message>
    <message>
        <source>Entities: %1. Variables: %2.</source>
        <translation>Entidades: %1. Variables: %2.</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Belongs to</source>
        <translation>Pertenece a</translation>
    </message>
    <message>
        <source>Record code</source>
        <translation>Código del registro</translation>
    </message>
    <message>
        <source>Record label</source>
        <translation>Etiqueta del registro</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Ponderación</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Seleccionable</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtual</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Número entero</translation>
    </message>
    <message>
        <source>Decimal number</source>
        <translation>Número decimal</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Sí o no</translation>
    </message>
    <message>
        <source>Lookup</source>
        <translation>Tabla de consulta</translation>
    </message>
    <message>
        <source>record code</source>
        <translation>código del registro</translation>
    </message>
    <message>
        <source>record label</source>
        <translation>etiqueta del registro</translation>
    </message>
    <message>
        <source>weight</source>
        <translation>ponderación</translation>
    </message>
    <message>
        <source>from a lookup table</source>
        <translation>de una tabla de consulta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Decimales</translation>
    </message>
    <message>
        <source>Valid range</source>
        <translation>Rango válido</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Perdido</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>No aplicable</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>%1 of record %2</source>
        <translation>%1 del registro %2</translation>
    </message>
    <message>
        <source>Source field</source>
        <translation>Campo de origen</translation>
    </message>
    <message>
        <source>Codebook: %1</source>
        <translation>Libro de códigos: %1</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Saltar al contenido</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>Buscar variables</translation>
    </message>
    <message>
        <source>Variables found: %1</source>
        <translation>Variables encontradas: %1</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Variables: %1</source>
        <translation>Variables: %1</translation>
    </message>
    <message>
        <source>The document cannot be written.</source>
        <translation>No se puede escribir el documento.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>This entity has no variables.</source>
        <translation>Esta entidad no tiene variables.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Draw the window into &lt;file&gt; and quit.</source>
        <translation>Dibujar la ventana en &lt;file&gt; y salir.</translation>
    </message>
    <message>
        <source>Size of the window, for instance 1280x800.</source>
        <translation>Tamaño de la ventana, por ejemplo 1280x800.</translation>
    </message>
    <message>
        <source>light, dark or system.</source>
        <translation>light (claro), dark (oscuro) o system.</translation>
    </message>
    <message>
        <source>Language of the texts, for instance es.</source>
        <translation>Idioma de los textos, por ejemplo es.</translation>
    </message>
    <message>
        <source>Open the dictionary &lt;file&gt;.</source>
        <translation>Abrir el diccionario &lt;file&gt;.</translation>
    </message>
    <message>
        <source>Select an entity, or one of its variables.</source>
        <translation>Seleccionar una entidad o una de sus variables.</translation>
    </message>
    <message>
        <source>An editor for data dictionaries.</source>
        <translation>Un editor de diccionarios de datos.</translation>
    </message>
    <message>
        <source>The dictionary to open.</source>
        <translation>El diccionario que se abrirá.</translation>
    </message>
    <message>
        <source>One dictionary at a time, please.</source>
        <translation>Un solo diccionario a la vez, por favor.</translation>
    </message>
    <message>
        <source>The theme is light, dark or system.</source>
        <translation>El tema es light, dark o system.</translation>
    </message>
    <message>
        <source>Go through what the workbench can do, leave pictures in &lt;folder&gt; and quit.</source>
        <translation>Mostrar lo que puede hacer el programa, dejar imágenes en &lt;folder&gt; y salir.</translation>
    </message>
    <message>
        <source>The tour needs a dictionary to go through.</source>
        <translation>El recorrido necesita un diccionario que mostrar.</translation>
    </message>
    <message>
        <source>The size is written as in 1280x800. Neither number is above %1.</source>
        <translation>El tamaño se escribe como en 1280x800. Ningún número es mayor que %1.</translation>
    </message>
</context>
<context>
    <name>CommonEdits</name>
    <message>
        <source>%1 and %L2 more</source>
        <translation>%1 y %L2 más</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <comment>a property, variables, why it was refused</comment>
        <translation>%1 de %2: %3</translation>
    </message>
</context>
<context>
    <name>CopyValuesDialog</name>
    <message>
        <source>Copy Values of %1</source>
        <translation>Copiar valores de %1</translation>
    </message>
    <message>
        <source>What will change</source>
        <translation>Lo que cambiará</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Value &amp;labels</source>
        <translation>&amp;Etiquetas de valor</translation>
    </message>
    <message>
        <source>&amp;Ranges</source>
        <translation>&amp;Rangos</translation>
    </message>
    <message>
        <source>&amp;Missing-value and not-applicable codes</source>
        <translation>Códigos de valor per&amp;dido y de no aplicable</translation>
    </message>
    <message>
        <source>Re&amp;place the labels and ranges that are there</source>
        <translation>Reem&amp;plazar las etiquetas y los rangos que hay</translation>
    </message>
    <message>
        <source>A&amp;dd what is not there yet</source>
        <translation>&amp;Añadir lo que falta</translation>
    </message>
    <message>
        <source>Filter variables</source>
        <translation>Filtrar variables</translation>
    </message>
    <message>
        <source>Filter by name, label or entity</source>
        <translation>Filtrar por nombre, etiqueta o entidad</translation>
    </message>
    <message>
        <source>No other variable matches the filter.</source>
        <translation>Ninguna otra variable coincide con el filtro.</translation>
    </message>
    <message>
        <source>Variables to copy to</source>
        <translation>Variables a las que se copia</translation>
    </message>
    <message>
        <source>&amp;Tick Shown</source>
        <translation>&amp;Marcar las mostradas</translation>
    </message>
    <message>
        <source>&amp;Untick Shown</source>
        <translation>Desmarcar las m&amp;ostradas</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Tick the variables to copy to.</source>
        <translation>Marque las variables a las que se copia.</translation>
    </message>
    <message>
        <source>copying values of %1 to %L2 variables</source>
        <translation>copiar valores de %1 a %L2 variables</translation>
    </message>
    <message>
        <source>%1 has none.</source>
        <translation>%1 no tiene.</translation>
    </message>
    <message>
        <source>copying values of %1 to %2</source>
        <comment>two variables</comment>
        <translation>copiar valores de %1 a %2</translation>
    </message>
</context>
<context>
    <name>CsvDialect</name>
    <message>
        <source>The file is damaged: it ends inside a character.</source>
        <translation>El archivo está dañado: termina en medio de un carácter.</translation>
    </message>
    <message>
        <source>The encoding &quot;%1&quot; is not known.</source>
        <translation>La codificación «%1» no se conoce.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; cannot separate cells.</source>
        <translation>El carácter «%1» no puede separar celdas.</translation>
    </message>
</context>
<context>
    <name>CsvSource</name>
    <message>
        <source>column %1</source>
        <translation>columna %1</translation>
    </message>
    <message>
        <source>The column has no name and is called %1.</source>
        <translation>La columna no tiene nombre y se llama %1.</translation>
    </message>
    <message>
        <source>Column %1 is called %2 too.</source>
        <translation>La columna %1 también se llama %2.</translation>
    </message>
</context>
<context>
    <name>CsvTable</name>
    <message>
        <source>A zero byte: this is no text file, or of another encoding.</source>
        <translation>Un byte nulo: no es un archivo de texto o tiene otra codificación.</translation>
    </message>
    <message>
        <source>The quotation marks that this row opens are never closed.</source>
        <translation>Las comillas que abre esta fila no se cierran nunca.</translation>
    </message>
    <message>
        <source>The file holds no rows.</source>
        <translation>El archivo no contiene filas.</translation>
    </message>
    <message>
        <source>A quotation mark stands where none may stand.</source>
        <translation>Hay una comilla donde no puede haberla.</translation>
    </message>
    <message>
        <source>Number of cells: %1, in the first row: %2.</source>
        <translation>Número de celdas: %1, en la primera fila: %2.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>The text is not valid in the encoding %1.</source>
        <translation>El texto no es válido en la codificación %1.</translation>
    </message>
</context>
<context>
    <name>DataFile</name>
    <message>
        <source>byte %1 of %2</source>
        <translation>byte %1 de %2</translation>
    </message>
</context>
<context>
    <name>DescriptionPage</name>
    <message>
        <source>The Run</source>
        <translation>La ejecución</translation>
    </message>
    <message>
        <source>What the run is called, who makes it, and where its data come from.</source>
        <translation>Cómo se llama la ejecución, quién la hace y de dónde vienen sus datos.</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>No&amp;mbre</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>&amp;Etiqueta</translation>
    </message>
    <message>
        <source>&amp;Author</source>
        <translation>A&amp;utor</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Proyecto</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Carpeta</translation>
    </message>
    <message>
        <source>Choose the Folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>&amp;Source file</source>
        <translation>Archivo de &amp;origen</translation>
    </message>
    <message>
        <source>Choose the Source File</source>
        <translation>Elegir el archivo de origen</translation>
    </message>
    <message>
        <source>Fil&amp;ter</source>
        <translation>Fi&amp;ltro</translation>
    </message>
    <message>
        <source>Sele&amp;ction filter</source>
        <translation>Filtro de &amp;selección</translation>
    </message>
    <message>
        <source>F&amp;ile filter</source>
        <translation>Filtro de arch&amp;ivos</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Con&amp;traseña</translation>
    </message>
    <message>
        <source>None. With one, only you will be able to read the file.</source>
        <translation>Ninguna. Con una, solo usted podrá leer el archivo.</translation>
    </message>
    <message>
        <source>Create no &amp;ranges</source>
        <translation>No crear &amp;rangos</translation>
    </message>
    <message>
        <source>Put the codes for not applicable an&amp;d missing into the ranges</source>
        <translation>Incluir en los ran&amp;gos los códigos de no aplicable y perdido</translation>
    </message>
    <message>
        <source>The file speaks of what the open dictionary does not have. It is not offered here and stays in the file as it is.</source>
        <translation>El archivo menciona lo que el diccionario abierto no tiene. No se ofrece aquí y queda en el archivo tal como está.</translation>
    </message>
    <message>
        <source>What the dictionary does not have</source>
        <translation>Lo que el diccionario no tiene</translation>
    </message>
</context>
<context>
    <name>DictionaryCheck</name>
    <message>
        <source>No problems found.</source>
        <translation>No se encontraron problemas.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>The entity %1 has this name too.</source>
        <translation>La entidad %1 también tiene este nombre.</translation>
    </message>
    <message>
        <source>Rename one of them.</source>
        <translation>Cambie el nombre de una de ellas.</translation>
    </message>
    <message>
        <source>The entity %1 has the alias &quot;%2&quot; too.</source>
        <translation>La entidad %1 también tiene el alias «%2».</translation>
    </message>
    <message>
        <source>Change one of the aliases.</source>
        <translation>Cambie uno de los alias.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; is the name of another entity.</source>
        <translation>El alias «%1» es el nombre de otra entidad.</translation>
    </message>
    <message>
        <source>Change the alias.</source>
        <translation>Cambie el alias.</translation>
    </message>
    <message>
        <source>The name of the entity is also the name of a group of variables.</source>
        <translation>El nombre de la entidad es también el de un grupo de variables.</translation>
    </message>
    <message>
        <source>Rename the entity or the group.</source>
        <translation>Cambie el nombre de la entidad o del grupo.</translation>
    </message>
    <message>
        <source>Some types are spelt as documents spell them (&quot;%1&quot;) and some as the program does (&quot;%2&quot;).</source>
        <translation>Algunos tipos están escritos como en los documentos («%1») y otros como en el programa («%2»).</translation>
    </message>
    <message>
        <source>Use one spelling: the layer compares types letter by letter.</source>
        <translation>Use una sola grafía: los tipos se comparan letra por letra.</translation>
    </message>
    <message>
        <source>The groups &quot;%1&quot; and &quot;%2&quot; differ in letter case or blanks only.</source>
        <translation>Los grupos «%1» y «%2» solo difieren en mayúsculas o espacios.</translation>
    </message>
    <message>
        <source>Give them the same name.</source>
        <translation>Deles el mismo nombre.</translation>
    </message>
    <message>
        <source>Two entities have the same name</source>
        <translation>Dos entidades tienen el mismo nombre</translation>
    </message>
    <message>
        <source>Two entities have the same alias</source>
        <translation>Dos entidades tienen el mismo alias</translation>
    </message>
    <message>
        <source>An entity&apos;s alias is the name of another entity</source>
        <translation>El alias de una entidad es el nombre de otra</translation>
    </message>
    <message>
        <source>An entity is called as a group of variables</source>
        <translation>Una entidad se llama como un grupo de variables</translation>
    </message>
    <message>
        <source>Types are spelt in two ways</source>
        <translation>Los tipos están escritos de dos maneras</translation>
    </message>
    <message>
        <source>Two groups differ in letter case or blanks only</source>
        <translation>Dos grupos solo difieren en mayúsculas o espacios</translation>
    </message>
    <message>
        <source>Another variable is called &quot;%1&quot; too.</source>
        <translation>Otra variable también se llama «%1».</translation>
    </message>
    <message>
        <source>The name is easily mistaken for &quot;%1&quot;.</source>
        <translation>El nombre se confunde fácilmente con «%1».</translation>
    </message>
    <message>
        <source>Choose names that differ more.</source>
        <translation>Elija nombres que se distingan más.</translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; has the alias &quot;%2&quot; too.</source>
        <translation>La variable «%1» también tiene el alias «%2».</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; is the name of another variable.</source>
        <translation>El alias «%1» es el nombre de otra variable.</translation>
    </message>
    <message>
        <source>The variable is called as an entity is.</source>
        <translation>La variable se llama como una entidad.</translation>
    </message>
    <message>
        <source>Rename the variable.</source>
        <translation>Cambie el nombre de la variable.</translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; is also the name or the alias of a variable.</source>
        <translation>El grupo «%1» es también el nombre o el alias de una variable.</translation>
    </message>
    <message>
        <source>Change the group.</source>
        <translation>Cambie el grupo.</translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; has the tag %2 too.</source>
        <translation>La variable «%1» también tiene el número %2.</translation>
    </message>
    <message>
        <source>Give each variable a tag of its own.</source>
        <translation>Dé a cada variable un número propio.</translation>
    </message>
    <message>
        <source>The positions %1 to %2 overlap those of &quot;%3&quot;, which end at %4.</source>
        <translation>Las posiciones %1 a %2 se solapan con las de «%3», que terminan en %4.</translation>
    </message>
    <message>
        <source>Correct the start or the length of one of them.</source>
        <translation>Corrija el inicio o la longitud de una de ellas.</translation>
    </message>
    <message>
        <source>Two variables of an entity have the same name</source>
        <translation>Dos variables de una entidad tienen el mismo nombre</translation>
    </message>
    <message>
        <source>Two variables of an entity have names that look alike</source>
        <translation>Dos variables de una entidad tienen nombres parecidos</translation>
    </message>
    <message>
        <source>Two variables of an entity have the same alias</source>
        <translation>Dos variables de una entidad tienen el mismo alias</translation>
    </message>
    <message>
        <source>A variable&apos;s alias is the name of another variable</source>
        <translation>El alias de una variable es el nombre de otra</translation>
    </message>
    <message>
        <source>A variable is called as an entity</source>
        <translation>Una variable se llama como una entidad</translation>
    </message>
    <message>
        <source>A group is called as a variable</source>
        <translation>Un grupo se llama como una variable</translation>
    </message>
    <message>
        <source>Two variables of an entity have the same tag</source>
        <translation>Dos variables de una entidad tienen el mismo número</translation>
    </message>
    <message>
        <source>Two variables lie on the same positions of a record</source>
        <translation>Dos variables ocupan las mismas posiciones de un registro</translation>
    </message>
    <message>
        <source>The entity has no name.</source>
        <translation>La entidad no tiene nombre.</translation>
    </message>
    <message>
        <source>Give it a name.</source>
        <translation>Dele un nombre.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is not valid.</source>
        <translation>El nombre «%1» no es válido.</translation>
    </message>
    <message>
        <source>Use letters, digits and underscores only, and no digit at the start.</source>
        <translation>Use solo letras, cifras y guiones bajos, y ninguna cifra al principio.</translation>
    </message>
    <message>
        <source>The name has %1 characters.</source>
        <translation>El nombre tiene %1 caracteres.</translation>
    </message>
    <message>
        <source>Shorten it to %1.</source>
        <translation>Acórtelo a %1.</translation>
    </message>
    <message>
        <source>The name begins or ends with blanks.</source>
        <translation>El nombre empieza o termina con espacios.</translation>
    </message>
    <message>
        <source>Remove them.</source>
        <translation>Elimínelos.</translation>
    </message>
    <message>
        <source>The entity has no label.</source>
        <translation>La entidad no tiene etiqueta.</translation>
    </message>
    <message>
        <source>Say what one record of it stands for.</source>
        <translation>Indique qué representa uno de sus registros.</translation>
    </message>
    <message>
        <source>The entity has neither variables nor entities below it.</source>
        <translation>La entidad no tiene variables ni entidades debajo.</translation>
    </message>
    <message>
        <source>Add its variables or remove it.</source>
        <translation>Añada sus variables o elimínela.</translation>
    </message>
    <message>
        <source>The level is %1 and should be %2.</source>
        <translation>El nivel es %1 y debería ser %2.</translation>
    </message>
    <message>
        <source>Set the level to the depth in the tree: trees are shown by it.</source>
        <translation>Ponga como nivel la profundidad en el árbol: los árboles se muestran según él.</translation>
    </message>
    <message>
        <source>Perhaps &quot;%1&quot; is meant.</source>
        <translation>Quizá se quiso decir «%1».</translation>
    </message>
    <message>
        <source>Name a variable of this entity, or none.</source>
        <translation>Indique una variable de esta entidad, o ninguna.</translation>
    </message>
    <message>
        <source>The reference code variable &quot;%1&quot; does not exist in this entity.</source>
        <translation>La variable «%1» del código de referencia no existe en esta entidad.</translation>
    </message>
    <message>
        <source>The reference label variable &quot;%1&quot; does not exist in this entity.</source>
        <translation>La variable «%1» de la etiqueta de referencia no existe en esta entidad.</translation>
    </message>
    <message>
        <source>The weight variable &quot;%1&quot; does not exist in this entity.</source>
        <translation>La variable de ponderación «%1» no existe en esta entidad.</translation>
    </message>
    <message>
        <source>The weight variable holds text.</source>
        <translation>La variable de ponderación contiene texto.</translation>
    </message>
    <message>
        <source>Make it a number or choose another weight variable.</source>
        <translation>Conviértala en número o elija otra variable de ponderación.</translation>
    </message>
    <message>
        <source>The entity is selectable but has no reference code variable.</source>
        <translation>La entidad es seleccionable pero no tiene variable de código de referencia.</translation>
    </message>
    <message>
        <source>Choose a reference code variable or make the entity not selectable.</source>
        <translation>Elija una variable de código de referencia o haga que la entidad no sea seleccionable.</translation>
    </message>
    <message>
        <source>The entity is selectable but the one above it is not.</source>
        <translation>La entidad es seleccionable, pero la superior no lo es.</translation>
    </message>
    <message>
        <source>Make the entity above selectable too, or this one not.</source>
        <translation>Haga también seleccionable la entidad superior, o no esta.</translation>
    </message>
    <message>
        <source>An entity has no name</source>
        <translation>Una entidad no tiene nombre</translation>
    </message>
    <message>
        <source>An entity&apos;s name holds other characters than names may</source>
        <translation>El nombre de una entidad contiene caracteres no permitidos</translation>
    </message>
    <message>
        <source>An entity&apos;s name is too long</source>
        <translation>El nombre de una entidad es demasiado largo</translation>
    </message>
    <message>
        <source>An entity&apos;s name has blanks around it</source>
        <translation>El nombre de una entidad tiene espacios alrededor</translation>
    </message>
    <message>
        <source>An entity has no label</source>
        <translation>Una entidad no tiene etiqueta</translation>
    </message>
    <message>
        <source>An entity holds nothing</source>
        <translation>Una entidad no contiene nada</translation>
    </message>
    <message>
        <source>An entity&apos;s level is not its depth</source>
        <translation>El nivel de una entidad no es su profundidad</translation>
    </message>
    <message>
        <source>A reference code variable does not exist</source>
        <translation>Una variable de código de referencia no existe</translation>
    </message>
    <message>
        <source>A reference label variable does not exist</source>
        <translation>Una variable de etiqueta de referencia no existe</translation>
    </message>
    <message>
        <source>A weight variable does not exist</source>
        <translation>Una variable de ponderación no existe</translation>
    </message>
    <message>
        <source>A weight variable holds text</source>
        <translation>Una variable de ponderación contiene texto</translation>
    </message>
    <message>
        <source>A selectable entity has no reference code</source>
        <translation>Una entidad seleccionable no tiene código de referencia</translation>
    </message>
    <message>
        <source>A selectable entity lies below one that is not</source>
        <translation>Una entidad seleccionable está debajo de una que no lo es</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>The range %1 is reversed: nothing lies in it.</source>
        <translation>El rango %1 está invertido: no contiene nada.</translation>
    </message>
    <message>
        <source>Exchange its bounds.</source>
        <translation>Intercambie sus límites.</translation>
    </message>
    <message>
        <source>The ranges %1 and %2 overlap.</source>
        <translation>Los rangos %1 y %2 se solapan.</translation>
    </message>
    <message>
        <source>Join them or correct a bound.</source>
        <translation>Únalos o corrija un límite.</translation>
    </message>
    <message>
        <source>The variable holds text but has a range.</source>
        <translation>La variable contiene texto pero tiene un rango.</translation>
    </message>
    <message>
        <source>Remove the range or change the type.</source>
        <translation>Elimine el rango o cambie el tipo.</translation>
    </message>
    <message>
        <source>The range %1 of a whole number has fractions.</source>
        <translation>El rango %1 de un número entero tiene decimales.</translation>
    </message>
    <message>
        <source>Round the bounds or make the variable a real number.</source>
        <translation>Redondee los límites o haga de la variable un número real.</translation>
    </message>
    <message>
        <source>The missing code %1 is a valid value.</source>
        <translation>El código de valor perdido %1 es un valor válido.</translation>
    </message>
    <message>
        <source>Choose a code outside the ranges.</source>
        <translation>Elija un código fuera de los rangos.</translation>
    </message>
    <message>
        <source>The not-applicable code %1 is a valid value.</source>
        <translation>El código de no aplicable %1 es un valor válido.</translation>
    </message>
    <message>
        <source>The missing and the not-applicable code are 0, which is a valid value.</source>
        <translation>Los códigos de valor perdido y de no aplicable son 0, que es un valor válido.</translation>
    </message>
    <message>
        <source>Choose codes outside the ranges.</source>
        <translation>Elija códigos fuera de los rangos.</translation>
    </message>
    <message>
        <source>Missing and not applicable have the same code, %1.</source>
        <translation>Perdido y no aplicable tienen el mismo código, %1.</translation>
    </message>
    <message>
        <source>Give them different codes.</source>
        <translation>Deles códigos distintos.</translation>
    </message>
    <message>
        <source>The category %1 &quot;%2&quot; lies outside the ranges.</source>
        <translation>La categoría %1 «%2» está fuera de los rangos.</translation>
    </message>
    <message>
        <source>Widen a range, or remove the category.</source>
        <translation>Amplíe un rango o elimine la categoría.</translation>
    </message>
    <message>
        <source>The code %1 stands for &quot;%2&quot; and for &quot;%3&quot;.</source>
        <translation>El código %1 representa «%2» y «%3».</translation>
    </message>
    <message>
        <source>Keep one of the two.</source>
        <translation>Conserve uno de los dos.</translation>
    </message>
    <message>
        <source>The code &quot;%1&quot; is no whole number.</source>
        <translation>El código «%1» no es un número entero.</translation>
    </message>
    <message>
        <source>The code &quot;%1&quot; is no number.</source>
        <translation>El código «%1» no es un número.</translation>
    </message>
    <message>
        <source>Correct the code: documents would keep a number in its place.</source>
        <translation>Corrija el código: los documentos guardarían un número en su lugar.</translation>
    </message>
    <message>
        <source>The category &quot;%1&quot; has no code.</source>
        <translation>La categoría «%1» no tiene código.</translation>
    </message>
    <message>
        <source>Give it a code or remove it.</source>
        <translation>Dele un código o elimínela.</translation>
    </message>
    <message>
        <source>The code %1 has no label.</source>
        <translation>El código %1 no tiene etiqueta.</translation>
    </message>
    <message>
        <source>Say what it stands for.</source>
        <translation>Indique qué representa.</translation>
    </message>
    <message>
        <source>The codes %1 and %2 have the same label, &quot;%3&quot;.</source>
        <translation>Los códigos %1 y %2 tienen la misma etiqueta, «%3».</translation>
    </message>
    <message>
        <source>Say how they differ.</source>
        <translation>Indique en qué se diferencian.</translation>
    </message>
    <message>
        <source>The code %1 does not fit into the length of %2.</source>
        <translation>El código %1 no cabe en la longitud de %2.</translation>
    </message>
    <message>
        <source>Shorten the code or widen the variable.</source>
        <translation>Acorte el código o ensanche la variable.</translation>
    </message>
    <message>
        <source>The range %1 does not fit into the length of %2.</source>
        <translation>El rango %1 no cabe en la longitud de %2.</translation>
    </message>
    <message>
        <source>Correct the range or the length.</source>
        <translation>Corrija el rango o la longitud.</translation>
    </message>
    <message>
        <source>A range&apos;s minimum is above its maximum</source>
        <translation>El mínimo de un rango es mayor que su máximo</translation>
    </message>
    <message>
        <source>Two ranges overlap</source>
        <translation>Dos rangos se solapan</translation>
    </message>
    <message>
        <source>A text has a range</source>
        <translation>Un texto tiene un rango</translation>
    </message>
    <message>
        <source>A whole number&apos;s range has fractions</source>
        <translation>El rango de un número entero tiene decimales</translation>
    </message>
    <message>
        <source>A range does not fit into the field</source>
        <translation>Un rango no cabe en el campo</translation>
    </message>
    <message>
        <source>A missing code is a valid value</source>
        <translation>Un código de valor perdido es un valor válido</translation>
    </message>
    <message>
        <source>A not-applicable code is a valid value</source>
        <translation>Un código de no aplicable es un valor válido</translation>
    </message>
    <message>
        <source>No missing codes are chosen and 0 is a valid value</source>
        <translation>No se han elegido códigos de valor perdido y 0 es un valor válido</translation>
    </message>
    <message>
        <source>Missing and not applicable have the same code</source>
        <translation>Perdido y no aplicable tienen el mismo código</translation>
    </message>
    <message>
        <source>A category lies outside the ranges</source>
        <translation>Una categoría está fuera de los rangos</translation>
    </message>
    <message>
        <source>Two categories have the same code</source>
        <translation>Dos categorías tienen el mismo código</translation>
    </message>
    <message>
        <source>A number&apos;s category has a code that is no such number</source>
        <translation>La categoría de un número tiene un código que no es un número así</translation>
    </message>
    <message>
        <source>A category has no code</source>
        <translation>Una categoría no tiene código</translation>
    </message>
    <message>
        <source>A code does not fit into the field</source>
        <translation>Un código no cabe en el campo</translation>
    </message>
    <message>
        <source>A code has no label</source>
        <translation>Un código no tiene etiqueta</translation>
    </message>
    <message>
        <source>Two codes have the same label</source>
        <translation>Dos códigos tienen la misma etiqueta</translation>
    </message>
    <message>
        <source>The variable has no name.</source>
        <translation>La variable no tiene nombre.</translation>
    </message>
    <message>
        <source>Use letters, digits and underscores only.</source>
        <translation>Use solo letras, cifras y guiones bajos.</translation>
    </message>
    <message>
        <source>The name begins with a digit.</source>
        <translation>El nombre empieza con una cifra.</translation>
    </message>
    <message>
        <source>Begin it with a letter: statistics packages refuse it otherwise.</source>
        <translation>Empiécelo con una letra: de lo contrario los paquetes estadísticos lo rechazan.</translation>
    </message>
    <message>
        <source>The variable has no label.</source>
        <translation>La variable no tiene etiqueta.</translation>
    </message>
    <message>
        <source>Say what it measures.</source>
        <translation>Indique qué mide.</translation>
    </message>
    <message>
        <source>The variable has no type; documents call it &quot;integer&quot;.</source>
        <translation>La variable no tiene tipo; los documentos lo llaman «integer».</translation>
    </message>
    <message>
        <source>Choose its type.</source>
        <translation>Elija su tipo.</translation>
    </message>
    <message>
        <source>The type &quot;%1&quot; is not known.</source>
        <translation>El tipo «%1» no se conoce.</translation>
    </message>
    <message>
        <source>Use &quot;integer&quot;, &quot;real&quot; or &quot;string&quot;.</source>
        <translation>Use «integer», «real» o «string».</translation>
    </message>
    <message>
        <source>Write it &quot;%1&quot;: types are compared letter by letter.</source>
        <translation>Escríbalo «%1»: los tipos se comparan letra por letra.</translation>
    </message>
    <message>
        <source>The text has no size; documents give it the size 1.</source>
        <translation>El texto no tiene tamaño; los documentos le dan el tamaño 1.</translation>
    </message>
    <message>
        <source>Set how many characters it may have.</source>
        <translation>Indique cuántos caracteres puede tener.</translation>
    </message>
    <message>
        <source>Decimals are set to %1, but the type has none.</source>
        <translation>Los decimales son %1, pero el tipo no tiene.</translation>
    </message>
    <message>
        <source>Make it a real number or set the decimals to 0.</source>
        <translation>Hágala un número real o ponga los decimales a 0.</translation>
    </message>
    <message>
        <source>The decimals (%1) do not fit into the length (%2).</source>
        <translation>Los decimales (%1) no caben en la longitud (%2).</translation>
    </message>
    <message>
        <source>Correct the decimals or the length.</source>
        <translation>Corrija los decimales o la longitud.</translation>
    </message>
    <message>
        <source>The tag %1 is not between 0 and %2.</source>
        <translation>El número %1 no está entre 0 y %2.</translation>
    </message>
    <message>
        <source>Choose another tag: it would be changed by the next edit.</source>
        <translation>Elija otro número: la siguiente edición lo cambiaría.</translation>
    </message>
    <message>
        <source>The variable is a lookup, but its entity is not selectable.</source>
        <translation>La variable es una tabla de consulta, pero su entidad no es seleccionable.</translation>
    </message>
    <message>
        <source>Make the entity selectable: lookups are taken by selectable entities only.</source>
        <translation>Haga seleccionable la entidad: solo las entidades seleccionables admiten tablas de consulta.</translation>
    </message>
    <message>
        <source>The record has a start position for it but no length.</source>
        <translation>El registro tiene para ella una posición inicial pero no una longitud.</translation>
    </message>
    <message>
        <source>Set the length.</source>
        <translation>Indique la longitud.</translation>
    </message>
    <message>
        <source>A variable has no name</source>
        <translation>Una variable no tiene nombre</translation>
    </message>
    <message>
        <source>A variable&apos;s name holds other characters than names may</source>
        <translation>El nombre de una variable contiene caracteres no permitidos</translation>
    </message>
    <message>
        <source>A variable&apos;s name begins with a digit</source>
        <translation>El nombre de una variable empieza con una cifra</translation>
    </message>
    <message>
        <source>A variable&apos;s name has blanks around it</source>
        <translation>El nombre de una variable tiene espacios alrededor</translation>
    </message>
    <message>
        <source>A variable has no label</source>
        <translation>Una variable no tiene etiqueta</translation>
    </message>
    <message>
        <source>A variable has no type</source>
        <translation>Una variable no tiene tipo</translation>
    </message>
    <message>
        <source>A type is not known</source>
        <translation>Un tipo no se conoce</translation>
    </message>
    <message>
        <source>A text has no size</source>
        <translation>Un texto no tiene tamaño</translation>
    </message>
    <message>
        <source>A whole number or text has decimals</source>
        <translation>Un número entero o un texto tiene decimales</translation>
    </message>
    <message>
        <source>The decimals do not fit into the field</source>
        <translation>Los decimales no caben en el campo</translation>
    </message>
    <message>
        <source>A tag is out of bounds</source>
        <translation>Un número está fuera de los límites</translation>
    </message>
    <message>
        <source>A lookup stands in an entity that is not selectable</source>
        <translation>Una tabla de consulta está en una entidad no seleccionable</translation>
    </message>
    <message>
        <source>A field has a start but no length</source>
        <translation>Un campo tiene inicio pero no longitud</translation>
    </message>
    <message>
        <source>Errors: %L1, warnings: %L2, notes: %L3.</source>
        <translation>Errores: %L1, advertencias: %L2, notas: %L3.</translation>
    </message>
</context>
<context>
    <name>DictionaryDifference</name>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Rango</translation>
    </message>
    <message>
        <source>Value label</source>
        <translation>Etiqueta de valor</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1: se añadió</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1: se eliminó</translation>
    </message>
    <message>
        <source>%1 moved from position %2 to %3</source>
        <translation>%1: se movió de la posición %2 a la %3</translation>
    </message>
    <message>
        <source>%1 moved to %2</source>
        <translation>%1: se movió a %2</translation>
    </message>
    <message>
        <source>%1 renamed to %2</source>
        <translation>%1: ahora se llama %2</translation>
    </message>
    <message>
        <source>%1: %2 changed from %3 to %4</source>
        <translation>%1: %2 cambió de %3 a %4</translation>
    </message>
    <message>
        <source>No differences.</source>
        <translation>Sin diferencias.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>label</source>
        <translation>etiqueta</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>alias</translation>
    </message>
    <message>
        <source>code variable</source>
        <translation>variable de código</translation>
    </message>
    <message>
        <source>label variable</source>
        <translation>variable de etiqueta</translation>
    </message>
    <message>
        <source>weight variable</source>
        <translation>variable de ponderación</translation>
    </message>
    <message>
        <source>documentation</source>
        <translation>documentación</translation>
    </message>
    <message>
        <source>level</source>
        <translation>nivel</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>«virtual»</translation>
    </message>
    <message>
        <source>selectable</source>
        <translation>«seleccionable»</translation>
    </message>
    <message>
        <source>marked for deletion</source>
        <translation>marca de borrado</translation>
    </message>
    <message>
        <source>group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>type</source>
        <translation>tipo</translation>
    </message>
    <message>
        <source>file name</source>
        <translation>nombre de archivo</translation>
    </message>
    <message>
        <source>size</source>
        <translation>tamaño</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>decimales</translation>
    </message>
    <message>
        <source>field size</source>
        <translation>tamaño del campo</translation>
    </message>
    <message>
        <source>position</source>
        <translation>posición</translation>
    </message>
    <message>
        <source>missing code</source>
        <translation>código de valor perdido</translation>
    </message>
    <message>
        <source>not-applicable code</source>
        <translation>código de no aplicable</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>número</translation>
    </message>
    <message>
        <source>checked</source>
        <translation>casilla</translation>
    </message>
    <message>
        <source>local</source>
        <translation>«local»</translation>
    </message>
    <message>
        <source>record</source>
        <translation>registro</translation>
    </message>
    <message>
        <source>field</source>
        <translation>campo</translation>
    </message>
    <message>
        <source>start</source>
        <translation>inicio</translation>
    </message>
    <message>
        <source>length</source>
        <translation>longitud</translation>
    </message>
    <message>
        <source>lookup</source>
        <translation>tabla de consulta</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>mínimo</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>máximo</translation>
    </message>
    <message>
        <source>code</source>
        <translation>código</translation>
    </message>
</context>
<context>
    <name>DictionaryFile</name>
    <message>
        <source>There is no root entity.</source>
        <translation>No hay entidad raíz.</translation>
    </message>
    <message>
        <source>There are %1 root entities instead of one.</source>
        <translation>Hay %1 entidades raíz en lugar de una.</translation>
    </message>
    <message>
        <source>This is a run configuration, not a dictionary.</source>
        <translation>Esto es una configuración de ejecución, no un diccionario.</translation>
    </message>
</context>
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Entity name already exists as a group name</source>
        <translation>El nombre de la entidad ya existe como nombre de grupo</translation>
    </message>
    <message>
        <source>Entity name already exists</source>
        <translation>El nombre de la entidad ya existe</translation>
    </message>
    <message>
        <source>Entity name already exists as an alias name</source>
        <translation>El nombre de la entidad ya existe como alias</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Texto no válido</translation>
    </message>
    <message>
        <source>Chain with length greater than 50</source>
        <translation>Texto de más de 50 caracteres</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>DICTIONARY</source>
        <translation>DICCIONARIO</translation>
    </message>
    <message>
        <source>New dictionary</source>
        <translation>Diccionario nuevo</translation>
    </message>
    <message>
        <source>It was opened for reading only. Save it under another name.</source>
        <translation>Se abrió solo para lectura. Guárdelo con otro nombre.</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <translation>Abriendo «%1»…</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>Guardando «%1»…</translation>
    </message>
    <message>
        <source>Recovering “%1”…</source>
        <translation>Recuperando «%1»…</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>There is no file yet to be saved to.</source>
        <translation>Aún no hay un archivo en el que guardar.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 es de solo lectura.</translation>
    </message>
    <message>
        <source>%1 has been changed since it was opened.</source>
        <translation>%1 ha cambiado desde que se abrió.</translation>
    </message>
    <message>
        <source>%1 holds what cannot be kept:</source>
        <translation>%1 contiene lo que no se puede conservar:</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>is there more than once; only the last is kept</source>
        <translation>está más de una vez; solo se conserva la última</translation>
    </message>
    <message>
        <source>%1 has more digits than can be kept</source>
        <translation>%1 tiene más cifras de las que se pueden conservar</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>línea %1, columna %2</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>%1 is not written: it could not be read again, because more is nested in it than a file may have.</source>
        <translation>%1 no se escribe: no se podría volver a leer, porque contiene más niveles anidados de los que admite un archivo.</translation>
    </message>
</context>
<context>
    <name>EditTogetherDialog</name>
    <message>
        <source>Edit Variables Together</source>
        <translation>Editar variables juntas</translation>
    </message>
    <message>
        <source>%L1 variables are selected. What is ticked is written to all of them; the rest stays as it is.</source>
        <translation>Hay %L1 variables seleccionadas. Lo marcado se escribe en todas; lo demás queda como está.</translation>
    </message>
    <message>
        <source>&amp;Write to All</source>
        <translation>&amp;Escribir en todas</translation>
    </message>
    <message>
        <source>Write %1</source>
        <translation>Escribir %1</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>varios valores</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>edit of %L1 variables</source>
        <translation>edición de %L1 variables</translation>
    </message>
    <message>
        <source>Not everything could be written:</source>
        <translation>No se pudo escribir todo:</translation>
    </message>
    <message>
        <source>will be emptied</source>
        <translation>se vaciará</translation>
    </message>
</context>
<context>
    <name>EntitiesPage</name>
    <message>
        <source>Check the se&amp;quence of its records</source>
        <translation>Comprobar la se&amp;cuencia de sus registros</translation>
    </message>
    <message>
        <source>Create S&amp;DC</source>
        <translation>Crear S&amp;DC</translation>
    </message>
    <message>
        <source>Mar&amp;k for deletion</source>
        <translation>Marcar para &amp;borrar</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Tick the entities that take part. Space switches the tick of the current one.</source>
        <translation>Marque las entidades que participan. La barra espaciadora cambia la marca de la actual.</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entidades</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar t&amp;odo</translation>
    </message>
    <message>
        <source>Select N&amp;one</source>
        <translation>&amp;Quitar la selección</translation>
    </message>
    <message>
        <source>&amp;Record type</source>
        <translation>Tipo de &amp;registro</translation>
    </message>
    <message>
        <source>How %1 takes part</source>
        <translation>Cómo participa %1</translation>
    </message>
    <message>
        <source>%1 does not take part</source>
        <translation>%1 no participa</translation>
    </message>
</context>
<context>
    <name>EntityForm</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Entity name</source>
        <translation>Nombre de la entidad</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Entity label</source>
        <translation>Etiqueta de la entidad</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Entity alias</source>
        <translation>Alias de la entidad</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Reference code variable</source>
        <translation>Variable del código de referencia</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Reference label variable</source>
        <translation>Variable de la etiqueta de referencia</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Ponderación</translation>
    </message>
    <message>
        <source>Weight variable</source>
        <translation>Variable de ponderación</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Seleccionable</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtual</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Entity documentation</source>
        <translation>Documentación de la entidad</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
</context>
<context>
    <name>EntityTreePanel</name>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>ENTITY</source>
        <translation>ENTIDAD</translation>
    </message>
    <message>
        <source>adding %1</source>
        <translation>añadir %1</translation>
    </message>
    <message>
        <source>duplicating %1</source>
        <translation>duplicar %1</translation>
    </message>
    <message>
        <source>removing %1</source>
        <translation>eliminar %1</translation>
    </message>
    <message>
        <source>moving %1</source>
        <translation>mover %1</translation>
    </message>
</context>
<context>
    <name>ExpressionCheck</name>
    <message>
        <source>A value or a variable is missing at the end.</source>
        <translation>Falta un valor o una variable al final.</translation>
    </message>
    <message>
        <source>This parenthesis is never closed.</source>
        <translation>Este paréntesis no se cierra nunca.</translation>
    </message>
    <message>
        <source>A value or a variable is missing before “%1”.</source>
        <translation>Falta un valor o una variable antes de «%1».</translation>
    </message>
    <message>
        <source>An operator is missing before “%1”.</source>
        <translation>Falta un operador antes de «%1».</translation>
    </message>
    <message>
        <source>This parenthesis was never opened.</source>
        <translation>Este paréntesis no se abrió nunca.</translation>
    </message>
    <message>
        <source>“%1” has no end.</source>
        <translation>«%1» no tiene fin.</translation>
    </message>
    <message>
        <source>“%1” means nothing here.</source>
        <translation>«%1» no significa nada aquí.</translation>
    </message>
    <message>
        <source>There is no entity “%1”.</source>
        <translation>No existe la entidad «%1».</translation>
    </message>
    <message>
        <source>There is neither an entity nor a variable “%1”.</source>
        <translation>No existe ni una entidad ni una variable «%1».</translation>
    </message>
    <message>
        <source>A variable needs its entity: “%1”.</source>
        <translation>Una variable necesita su entidad: «%1».</translation>
    </message>
    <message>
        <source>The name of a variable is missing after “%1”.</source>
        <translation>Falta el nombre de una variable después de «%1».</translation>
    </message>
    <message>
        <source>The entity “%1” has no variable “%2”.</source>
        <translation>La entidad «%1» no tiene la variable «%2».</translation>
    </message>
</context>
<context>
    <name>ExpressionDialog</name>
    <message>
        <source>Build Expression</source>
        <translation>Crear expresión</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>E&amp;xpresión</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>Drag items here or type, for instance PERSON.AGE &gt;= 15 AND PERSON.SEX = 1</source>
        <translation>Arrastre elementos aquí o escriba, por ejemplo PERSON.AGE &gt;= 15 AND PERSON.SEX = 1</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entidades</translation>
    </message>
    <message>
        <source>The dictionary has no entities.</source>
        <translation>El diccionario no tiene entidades.</translation>
    </message>
    <message>
        <source>Insert Entity</source>
        <translation>Insertar entidad</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>The entity has no variables.</source>
        <translation>La entidad no tiene variables.</translation>
    </message>
    <message>
        <source>Insert Variable</source>
        <translation>Insertar variable</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Categorías</translation>
    </message>
    <message>
        <source>The variable has no value labels.</source>
        <translation>La variable no tiene etiquetas de valor.</translation>
    </message>
    <message>
        <source>Insert Category</source>
        <translation>Insertar categoría</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>igual</translation>
    </message>
    <message>
        <source>not equal</source>
        <translation>distinto</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>menor que</translation>
    </message>
    <message>
        <source>less than or equal</source>
        <translation>menor o igual</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>mayor que</translation>
    </message>
    <message>
        <source>greater than or equal</source>
        <translation>mayor o igual</translation>
    </message>
    <message>
        <source>both conditions hold</source>
        <translation>se cumplen ambas condiciones</translation>
    </message>
    <message>
        <source>one of the conditions holds</source>
        <translation>se cumple una de las condiciones</translation>
    </message>
    <message>
        <source>the condition does not hold</source>
        <translation>la condición no se cumple</translation>
    </message>
    <message>
        <source>opening parenthesis</source>
        <translation>paréntesis de apertura</translation>
    </message>
    <message>
        <source>closing parenthesis</source>
        <translation>paréntesis de cierre</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>C&amp;opy to Clipboard</source>
        <translation>C&amp;opiar al portapapeles</translation>
    </message>
    <message>
        <source>&amp;Insert into Notes</source>
        <translation>&amp;Insertar en las notas</translation>
    </message>
    <message>
        <source>Insert the expression into “%1”</source>
        <translation>Insertar la expresión en «%1»</translation>
    </message>
    <message>
        <source>The expression is empty.</source>
        <translation>La expresión está vacía.</translation>
    </message>
    <message>
        <source>The expression is complete.</source>
        <translation>La expresión está completa.</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>¿Guardar los cambios de «%1»?</translation>
    </message>
    <message>
        <source>Otherwise they are lost.</source>
        <translation>De lo contrario se pierden.</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Abrir diccionario</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>dictionary</source>
        <translation>diccionario</translation>
    </message>
    <message>
        <source>Save Dictionary As</source>
        <translation>Guardar diccionario como</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>Go back to “%1” as it was saved?</source>
        <translation>¿Volver a «%1» tal como se guardó?</translation>
    </message>
    <message>
        <source>All changes since then are lost, and so is what can be undone.</source>
        <translation>Se pierden todos los cambios desde entonces, y también lo que se puede deshacer.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>“%1” is open in another window.</source>
        <translation>«%1» está abierto en otra ventana.</translation>
    </message>
    <message>
        <source>Changes that are made in both windows have to be brought together by hand. Open it here to read it only?</source>
        <translation>Los cambios hechos en ambas ventanas deben reunirse a mano. ¿Abrirlo aquí solo para lectura?</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Abrir solo para lectura</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Abrir de todos modos</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Overwrite it nevertheless?</source>
        <translation>¿Sobrescribirlo de todos modos?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Quillon Workbench</source>
        <translation>Quillon Workbench</translation>
    </message>
    <message>
        <source>“%1” cannot be saved.</source>
        <translation>No se puede guardar «%1».</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Guardar de todos modos</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>No se puede abrir «%1».</translation>
    </message>
</context>
<context>
    <name>Find</name>
    <message>
        <source>%1, code %2</source>
        <comment>a variable and one of its codes</comment>
        <translation>%1, código %2</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Value label</source>
        <translation>Etiqueta de valor</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <source>Find in the dictionary</source>
        <translation>Buscar en el diccionario</translation>
    </message>
    <message>
        <source>Find in the whole dictionary</source>
        <translation>Buscar en todo el diccionario</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Palabras completas</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Lo encontrado</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Aliases</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Value labels</source>
        <translation>Etiquetas de valor</translation>
    </message>
    <message>
        <source>Find in: %1</source>
        <translation>Buscar en: %1</translation>
    </message>
    <message>
        <source>In</source>
        <translation>En</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>No se encontró nada.</translation>
    </message>
    <message>
        <source>Type what to find: names, aliases, labels, groups, codes or value labels.</source>
        <translation>Escriba lo que busca: nombres, alias, etiquetas, grupos, códigos o etiquetas de valor.</translation>
    </message>
    <message>
        <source>Found: %L1</source>
        <translation>Encontrados: %L1</translation>
    </message>
    <message>
        <source>There is more: only the first %L1 are listed.</source>
        <translation>Hay más: solo se muestran los primeros %L1.</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>Severity</source>
        <translation>Gravedad</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Suggestion</source>
        <translation>Sugerencia</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>%L1 changes</source>
        <translation>%L1 cambios</translation>
    </message>
    <message>
        <source>rename of %1</source>
        <translation>cambio de nombre de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a property and what has it</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>change of %1</source>
        <translation>cambio de %1</translation>
    </message>
</context>
<context>
    <name>InputFile</name>
    <message>
        <source>There is no such file.</source>
        <translation>No existe ese archivo.</translation>
    </message>
    <message>
        <source>It is a folder, not a file.</source>
        <translation>Es una carpeta, no un archivo.</translation>
    </message>
    <message>
        <source>It is a device or a pipe, not a file.</source>
        <translation>Es un dispositivo o una tubería, no un archivo.</translation>
    </message>
</context>
<context>
    <name>LabelSetsDialog</name>
    <message>
        <source>Identical Label Sets</source>
        <translation>Conjuntos de etiquetas iguales</translation>
    </message>
    <message>
        <source>Change All</source>
        <translation>Cambiar todo</translation>
    </message>
    <message>
        <source>No two variables have the same value labels.</source>
        <translation>No hay dos variables con las mismas etiquetas de valor.</translation>
    </message>
    <message>
        <source>Identical label sets</source>
        <translation>Conjuntos de etiquetas iguales</translation>
    </message>
    <message>
        <source>&amp;Sets that variables share</source>
        <translation>&amp;Conjuntos compartidos por variables</translation>
    </message>
    <message>
        <source>No value labels.</source>
        <translation>Sin etiquetas de valor.</translation>
    </message>
    <message>
        <source>Labels of the set</source>
        <translation>Etiquetas del conjunto</translation>
    </message>
    <message>
        <source>&amp;Labels of the set</source>
        <translation>&amp;Etiquetas del conjunto</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>E&amp;liminar</translation>
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
        <source>Variables that have the set</source>
        <translation>Variables que tienen el conjunto</translation>
    </message>
    <message>
        <source>&amp;Change All</source>
        <translation>Cambiar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Change in %L1 Variables</source>
        <translation>Cambiar en %L1 &amp;variables</translation>
    </message>
    <message>
        <source>value labels of %L1 variables</source>
        <translation>etiquetas de valor de %L1 variables</translation>
    </message>
    <message>
        <source>%L1 variables: %2</source>
        <comment>how many have these labels</comment>
        <translation>%L1 variables: %2</translation>
    </message>
    <message>
        <source>Change or reset the labels before you go to another set.</source>
        <translation>Cambie o restablezca las etiquetas antes de pasar a otro conjunto.</translation>
    </message>
    <message>
        <source>&amp;Variables that have the set</source>
        <translation>Variables &amp;que tienen el conjunto</translation>
    </message>
    <message>
        <source>Change the labels in all variables that have the set?</source>
        <translation>¿Cambiar las etiquetas en todas las variables que tienen el conjunto?</translation>
    </message>
    <message>
        <source>Otherwise what you have edited is lost.</source>
        <translation>De lo contrario se pierde lo que ha editado.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
</context>
<context>
    <name>LookupFile</name>
    <message>
        <source>No column is called &quot;id&quot;.</source>
        <translation>Ninguna columna se llama «id».</translation>
    </message>
    <message>
        <source>The id is empty.</source>
        <translation>El identificador está vacío.</translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; stands in line %2 too.</source>
        <translation>El identificador «%1» está también en la línea %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Problems (%L1)</source>
        <translation>Problemas (%L1)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>About Quillon Workbench</source>
        <translation>Acerca de Quillon Workbench</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quillon Workbench %1&lt;/h3&gt;&lt;p&gt;An editor for data dictionaries.&lt;/p&gt;&lt;p&gt;Icons: Bootstrap Icons, MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quillon Workbench %1&lt;/h3&gt;&lt;p&gt;Un editor de diccionarios de datos.&lt;/p&gt;&lt;p&gt;Iconos: Bootstrap Icons, licencia MIT.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1[*] – Quillon Workbench</source>
        <translation>%1[*] – Quillon Workbench</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept safe: %1</source>
        <translation>No se pueden proteger los cambios sin guardar: %1</translation>
    </message>
    <message>
        <source>%1[*] (read-only) – Quillon Workbench</source>
        <translation>%1[*] (solo lectura) – Quillon Workbench</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>Move %1</source>
        <translation>Mover %1</translation>
    </message>
    <message>
        <source>Move %L1 Variables</source>
        <translation>Mover %L1 variables</translation>
    </message>
    <message>
        <source>What will change</source>
        <translation>Lo que cambiará</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Mover</translation>
    </message>
    <message>
        <source>Put it &amp;below:</source>
        <translation>Poner &amp;debajo de:</translation>
    </message>
    <message>
        <source>Put &amp;into:</source>
        <translation>Poner &amp;en:</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Choose an entity.</source>
        <translation>Elija una entidad.</translation>
    </message>
    <message>
        <source>%1 will stand below %2, after what is there.</source>
        <translation>%1 estará debajo de %2, después de lo que hay allí.</translation>
    </message>
    <message>
        <source>There are %L1 more changes.</source>
        <translation>Hay %L1 cambios más.</translation>
    </message>
    <message>
        <source>Variables that will stand at the end of %2: %L1</source>
        <comment>%1 is their number</comment>
        <translation>Variables que estarán al final de %2: %L1</translation>
    </message>
    <message>
        <source>moving %1 to %2</source>
        <translation>mover %1 a %2</translation>
    </message>
    <message>
        <source>moving %L1 variables to %2</source>
        <translation>mover %L1 variables a %2</translation>
    </message>
</context>
<context>
    <name>Paste</name>
    <message>
        <source>%1 and %L2 more</source>
        <translation>%1 y %L2 más</translation>
    </message>
    <message>
        <source>There is no such column, so it was left out.</source>
        <translation>No existe esa columna, así que se omitió.</translation>
    </message>
    <message>
        <source>There are no such columns, so they were left out.</source>
        <translation>No existen esas columnas, así que se omitieron.</translation>
    </message>
    <message>
        <source>There is no text on the clipboard.</source>
        <translation>No hay texto en el portapapeles.</translation>
    </message>
    <message>
        <source>This line and those below</source>
        <translation>Esta línea y las siguientes</translation>
    </message>
    <message>
        <source>Pasting was stopped.</source>
        <translation>Se detuvo el pegado.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <translation>%1 «%2»</translation>
    </message>
    <message>
        <source>Cells after the first %L1</source>
        <translation>Celdas después de las primeras %L1</translation>
    </message>
    <message>
        <source>There is no column for them.</source>
        <translation>No hay columna para ellas.</translation>
    </message>
    <message>
        <source>Line %L1: %2. %3</source>
        <comment>what was refused, and why</comment>
        <translation>Línea %L1: %2. %3</translation>
    </message>
</context>
<context>
    <name>ProblemsPanel</name>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Advertencias y errores</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Solo errores</translation>
    </message>
    <message>
        <source>Problems to show</source>
        <translation>Problemas que se muestran</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Looking for problems…</source>
        <translation>Buscando problemas…</translation>
    </message>
    <message>
        <source>No problems of this severity.</source>
        <translation>No hay problemas de esta gravedad.</translation>
    </message>
    <message>
        <source>&amp;Display:</source>
        <translation>Mo&amp;strar:</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RangeTarget</name>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>This is no whole number.</source>
        <translation>No es un número entero.</translation>
    </message>
    <message>
        <source>This is no number.</source>
        <translation>No es un número.</translation>
    </message>
</context>
<context>
    <name>RangesPanel</name>
    <message>
        <source>Ranges</source>
        <translation>Rangos</translation>
    </message>
    <message>
        <source>No ranges: every value is valid.</source>
        <translation>Sin rangos: todos los valores son válidos.</translation>
    </message>
    <message>
        <source>adding a range to %1</source>
        <translation>añadir un rango a %1</translation>
    </message>
    <message>
        <source>removing ranges of %1</source>
        <translation>eliminar rangos de %1</translation>
    </message>
    <message>
        <source>moving ranges of %1</source>
        <translation>mover rangos de %1</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir reci&amp;ente</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Aún no hay archivos</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Another window has recovered these changes.</source>
        <translation>Otra ventana ha recuperado estos cambios.</translation>
    </message>
    <message>
        <source>The changes are damaged.</source>
        <translation>Los cambios están dañados.</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Quillon Workbench</source>
        <translation>Quillon Workbench</translation>
    </message>
    <message>
        <source>The changes cannot be recovered.</source>
        <translation>No se pueden recuperar los cambios.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>It was never saved.</source>
        <translation>Nunca se guardó.</translation>
    </message>
    <message>
        <source>It is as it was.</source>
        <translation>Está como estaba.</translation>
    </message>
    <message>
        <source>It has been changed since.</source>
        <translation>Ha cambiado desde entonces.</translation>
    </message>
    <message>
        <source>It is gone.</source>
        <translation>Ya no existe.</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The workbench ended before these changes were saved. Recover them to see them and to save them. The file stays as it is until then.</source>
        <translation>El programa terminó antes de que se guardaran estos cambios. Recupérelos para verlos y guardarlos. Hasta entonces el archivo queda como está.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Diccionario</translation>
    </message>
    <message>
        <source>Changed on</source>
        <translation>Modificado el</translation>
    </message>
    <message>
        <source>The file</source>
        <translation>El archivo</translation>
    </message>
    <message>
        <source>New dictionary</source>
        <translation>Diccionario nuevo</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>Delete unsaved changes</source>
        <translation>Eliminar cambios sin guardar</translation>
    </message>
    <message>
        <source>Delete the unsaved changes to “%1”?</source>
        <translation>¿Eliminar los cambios sin guardar de «%1»?</translation>
    </message>
    <message>
        <source>They cannot be had again.</source>
        <translation>No se podrán recuperar.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>ReferenceList</name>
    <message>
        <source>Filter %1</source>
        <translation>Filtrar %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Names and labels</source>
        <translation>Nombres y etiquetas</translation>
    </message>
    <message>
        <source>What to show of %1</source>
        <translation>Qué se muestra: %1</translation>
    </message>
    <message>
        <source>Nothing matches the filter.</source>
        <translation>Nada coincide con el filtro.</translation>
    </message>
</context>
<context>
    <name>RunCommands</name>
    <message>
        <source>Open Run Configuration</source>
        <translation>Abrir configuración de ejecución</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Se guardó %1</translation>
    </message>
    <message>
        <source>The run configuration was made for this dictionary, which is not there. It is shown with the dictionary that is open.</source>
        <translation>La configuración de ejecución se hizo para este diccionario, que no está ahí. Se muestra con el diccionario abierto.</translation>
    </message>
    <message>
        <source>“%1” was made for another dictionary than the one that is open.</source>
        <translation>«%1» se hizo para otro diccionario que el que está abierto.</translation>
    </message>
    <message>
        <source>It was made for “%1”. Open that dictionary instead of “%2”?</source>
        <translation>Se hizo para «%1». ¿Abrir ese diccionario en lugar de «%2»?</translation>
    </message>
    <message>
        <source>&amp;Open It</source>
        <translation>A&amp;brirlo</translation>
    </message>
    <message>
        <source>&amp;Keep the Open One</source>
        <translation>&amp;Conservar el abierto</translation>
    </message>
</context>
<context>
    <name>RunConfigurationFile</name>
    <message>
        <source>There is no run configuration.</source>
        <translation>No hay configuración de ejecución.</translation>
    </message>
    <message>
        <source>This is a dictionary, not a run configuration.</source>
        <translation>Esto es un diccionario, no una configuración de ejecución.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>What is missing</source>
        <translation>Lo que falta</translation>
    </message>
</context>
<context>
    <name>RunWizard</name>
    <message>
        <source>New Run Configuration</source>
        <translation>Nueva configuración de ejecución</translation>
    </message>
    <message>
        <source>Run Configuration %1</source>
        <translation>Configuración de ejecución %1</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Leave without saving the run configuration?</source>
        <translation>¿Salir sin guardar la configuración de ejecución?</translation>
    </message>
    <message>
        <source>What you chose here is lost.</source>
        <translation>Se pierde lo que ha elegido aquí.</translation>
    </message>
</context>
<context>
    <name>RunWords</name>
    <message>
        <source>Give the run a name.</source>
        <translation>Dé un nombre a la ejecución.</translation>
    </message>
    <message>
        <source>Tick at least one entity that takes part.</source>
        <translation>Marque al menos una entidad que participe.</translation>
    </message>
    <message>
        <source>Tick at least one variable of %1, or go back and leave it out.</source>
        <translation>Marque al menos una variable de %1, o vuelva atrás y déjela fuera.</translation>
    </message>
    <message>
        <source>one without a name</source>
        <translation>una sin nombre</translation>
    </message>
    <message>
        <source>Entities that the dictionary does not have: %1</source>
        <translation>Entidades que el diccionario no tiene: %1</translation>
    </message>
    <message>
        <source>Variables that %1 does not have: %2</source>
        <translation>Variables que %1 no tiene: %2</translation>
    </message>
    <message>
        <source>The record type is %1.</source>
        <translation>El tipo de registro es %1.</translation>
    </message>
    <message>
        <source>The sequence of its records is not checked.</source>
        <translation>No se comprueba la secuencia de sus registros.</translation>
    </message>
    <message>
        <source>SDC is created.</source>
        <translation>Se crea SDC.</translation>
    </message>
    <message>
        <source>It is marked for deletion.</source>
        <translation>Está marcada para borrar.</translation>
    </message>
    <message>
        <source>Label: %1</source>
        <translation>Etiqueta: %1</translation>
    </message>
    <message>
        <source>Author: %1</source>
        <translation>Autor: %1</translation>
    </message>
    <message>
        <source>Project: %1</source>
        <translation>Proyecto: %1</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Carpeta: %1</translation>
    </message>
    <message>
        <source>Source file: %1</source>
        <translation>Archivo de origen: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Selection filter: %1</source>
        <translation>Filtro de selección: %1</translation>
    </message>
    <message>
        <source>File filter: %1</source>
        <translation>Filtro de archivos: %1</translation>
    </message>
    <message>
        <source>No ranges are created.</source>
        <translation>No se crean rangos.</translation>
    </message>
    <message>
        <source>The codes for not applicable and missing are in the ranges.</source>
        <translation>Los códigos de no aplicable y perdido están en los rangos.</translation>
    </message>
    <message>
        <source>The password stands in the file as it is. Only you will be able to read the file.</source>
        <translation>La contraseña está en el archivo tal cual. Solo usted podrá leer el archivo.</translation>
    </message>
    <message>
        <source>The run is called %1.</source>
        <translation>La ejecución se llama %1.</translation>
    </message>
    <message>
        <source>These entities take part:</source>
        <translation>Participan estas entidades:</translation>
    </message>
    <message>
        <source>Kept as it is in the file:</source>
        <translation>Queda en el archivo tal como está:</translation>
    </message>
    <message>
        <source>%1 with all variables.</source>
        <translation>%1 con todas las variables.</translation>
    </message>
    <message>
        <source>%1 with %2 of %3 variables.</source>
        <translation>%1 con %2 de %3 variables.</translation>
    </message>
</context>
<context>
    <name>SourceCommands</name>
    <message>
        <source>Open Dataset</source>
        <translation>Abrir conjunto de datos</translation>
    </message>
    <message>
        <source>Open CSV File</source>
        <translation>Abrir archivo CSV</translation>
    </message>
    <message>
        <source>Open Lookups</source>
        <translation>Abrir tablas de consulta</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Reading the file…</source>
        <translation>Leyendo el archivo…</translation>
    </message>
    <message>
        <source>Data files (*.%1)</source>
        <translation>Archivos de datos (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message>
        <source>The file was read, but not everything as it stands there.</source>
        <translation>Se leyó el archivo, pero no todo tal como está en él.</translation>
    </message>
</context>
<context>
    <name>SourceReader</name>
    <message>
        <source>This kind of file is not known. Known are: %1.</source>
        <translation>No se conoce este tipo de archivo. Se conocen: %1.</translation>
    </message>
</context>
<context>
    <name>SourceTab</name>
    <message>
        <source>Open a file to list its fields here, then drag them onto the variables.</source>
        <translation>Abra un archivo para listar aquí sus campos y arrástrelos luego a las variables.</translation>
    </message>
    <message>
        <source>Filter %1</source>
        <translation>Filtrar %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Show what was read, but not as the file has it</source>
        <translation>Mostrar lo que se leyó de otra forma que como está en el archivo</translation>
    </message>
    <message>
        <source>Notes (%L1)…</source>
        <translation>Notas (%L1)…</translation>
    </message>
    <message>
        <source>Nothing matches the filter.</source>
        <translation>Nada coincide con el filtro.</translation>
    </message>
</context>
<context>
    <name>SourcesPanel</name>
    <message>
        <source>Dataset fields</source>
        <translation>Campos del conjunto de datos</translation>
    </message>
    <message>
        <source>CSV fields</source>
        <translation>Campos CSV</translation>
    </message>
    <message>
        <source>Lookups</source>
        <translation>Tablas de consulta</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>Conjunto de datos</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>All records</source>
        <translation>Todos los registros</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Lookup</source>
        <translation>Tabla de consulta</translation>
    </message>
</context>
<context>
    <name>StatisticsFields</name>
    <message>
        <source>variable %1</source>
        <translation>variable %1</translation>
    </message>
    <message>
        <source>These codes are empty or hold blanks and are left out of the categories: &quot;%1&quot;.</source>
        <translation>Estos códigos están vacíos o contienen espacios y se omiten de las categorías: «%1».</translation>
    </message>
</context>
<context>
    <name>StatisticsFile</name>
    <message>
        <source>The file is damaged: its end is missing.</source>
        <translation>El archivo está dañado: falta el final.</translation>
    </message>
    <message>
        <source>row %1, %2</source>
        <translation>fila %1, %2</translation>
    </message>
    <message>
        <source>The file is damaged or of another kind: %1</source>
        <translation>El archivo está dañado o es de otro tipo: %1</translation>
    </message>
</context>
<context>
    <name>SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>This is what the run configuration says. Save it, or go back and change it.</source>
        <translation>Esto dice la configuración de ejecución. Guárdela, o vuelva atrás y cámbiela.</translation>
    </message>
    <message>
        <source>Save &amp;as</source>
        <translation>Guardar &amp;como</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>E&amp;xaminar…</translation>
    </message>
    <message>
        <source>Say where the run configuration is to be saved.</source>
        <translation>Indique dónde se guardará la configuración de ejecución.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>«%1» ya existe.</translation>
    </message>
    <message>
        <source>Its content will be lost.</source>
        <translation>Se perderá su contenido.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Save Run Configuration</source>
        <translation>Guardar configuración de ejecución</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>TabText</name>
    <message>
        <source>The clipboard does not hold a table but characters that are no text.</source>
        <translation>El portapapeles no contiene una tabla, sino caracteres que no son texto.</translation>
    </message>
    <message>
        <source>The quotation mark that a cell of line %L1 begins with is never closed.</source>
        <translation>La comilla con la que empieza una celda de la línea %L1 no se cierra nunca.</translation>
    </message>
</context>
<context>
    <name>TableSchema</name>
    <message>
        <source>schema</source>
        <translation>esquema</translation>
    </message>
    <message>
        <source>This is no valid JSON: %1.</source>
        <translation>No es JSON válido: %1.</translation>
    </message>
    <message>
        <source>The file holds no JSON object.</source>
        <translation>El archivo no contiene ningún objeto JSON.</translation>
    </message>
    <message>
        <source>A data package must list its resources.</source>
        <translation>Un paquete de datos debe enumerar sus recursos.</translation>
    </message>
    <message>
        <source>resource %1</source>
        <translation>recurso %1</translation>
    </message>
    <message>
        <source>A resource must be an object with a name.</source>
        <translation>Un recurso debe ser un objeto con nombre.</translation>
    </message>
    <message>
        <source>The resource has no schema and is left out.</source>
        <translation>El recurso no tiene esquema y se omite.</translation>
    </message>
    <message>
        <source>The schema &quot;%1&quot; does not lie beside the package.</source>
        <translation>El esquema «%1» no está junto al paquete.</translation>
    </message>
    <message>
        <source>A table schema must list its fields.</source>
        <translation>Un esquema de tabla debe enumerar sus campos.</translation>
    </message>
    <message>
        <source>%1, field %2</source>
        <translation>%1, campo %2</translation>
    </message>
    <message>
        <source>A field must have a name.</source>
        <translation>Un campo debe tener nombre.</translation>
    </message>
    <message>
        <source>The code &quot;%1&quot; is empty or holds blanks and is left out of the categories.</source>
        <translation>El código «%1» está vacío o contiene espacios y se omite de las categorías.</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>A dictionary is open.</source>
        <translation>Hay un diccionario abierto.</translation>
    </message>
    <message>
        <source>An entity is renamed.</source>
        <translation>Se cambia el nombre de una entidad.</translation>
    </message>
    <message>
        <source>A variable is found by typing a part of its label.</source>
        <translation>Se encuentra una variable escribiendo parte de su etiqueta.</translation>
    </message>
    <message>
        <source>Its label is edited in place.</source>
        <translation>Su etiqueta se edita en la tabla.</translation>
    </message>
    <message>
        <source>It gets a value label and a range.</source>
        <translation>Recibe una etiqueta de valor y un rango.</translation>
    </message>
    <message>
        <source>A data file lists its fields.</source>
        <translation>Un archivo de datos muestra sus campos.</translation>
    </message>
    <message>
        <source>The fields become variables; clashes are resolved.</source>
        <translation>Los campos pasan a ser variables; se resuelven los conflictos.</translation>
    </message>
    <message>
        <source>Every step can be undone and redone.</source>
        <translation>Cada paso se puede deshacer y rehacer.</translation>
    </message>
    <message>
        <source>The dictionary is saved.</source>
        <translation>Se guarda el diccionario.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2.</source>
        <translation>No se puede copiar %1 a %2.</translation>
    </message>
    <message>
        <source>The tour ended early, at “%1”.</source>
        <translation>El recorrido terminó antes de tiempo, en «%1».</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) in %1</source>
        <translation>
            <numerusform>%n imagen en %1</numerusform>
            <numerusform>%n imágenes en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The picture cannot be written to %1.</source>
        <translation>No se puede escribir la imagen en %1.</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>No se sabe</translation>
    </message>
    <message>
        <source>The dictionary is checked.</source>
        <translation>Se comprueba el diccionario.</translation>
    </message>
    <message>
        <source>An expression is put together from what the dictionary holds.</source>
        <translation>Se compone una expresión con lo que contiene el diccionario.</translation>
    </message>
    <message>
        <source>Area units are selected.</source>
        <translation>Se seleccionan unidades de área.</translation>
    </message>
    <message>
        <source>A run configuration is made.</source>
        <translation>Se hace una configuración de ejecución.</translation>
    </message>
    <message>
        <source>First run</source>
        <translation>Primera ejecución</translation>
    </message>
    <message>
        <source>The whole tree is searched.</source>
        <translation>Se busca en todo el árbol.</translation>
    </message>
    <message>
        <source>Several variables are edited together.</source>
        <translation>Se editan varias variables juntas.</translation>
    </message>
    <message>
        <source>Value labels and ranges are copied to many variables.</source>
        <translation>Se copian etiquetas de valor y rangos a muchas variables.</translation>
    </message>
    <message>
        <source>Identical sets of value labels are edited once.</source>
        <translation>Los conjuntos iguales de etiquetas de valor se editan una sola vez.</translation>
    </message>
    <message>
        <source>There is a file %1 already. Choose an empty folder.</source>
        <translation>Ya hay un archivo %1. Elija una carpeta vacía.</translation>
    </message>
    <message>
        <source>The columns of a text file are listed.</source>
        <translation>Se enumeran las columnas de un archivo de texto.</translation>
    </message>
    <message>
        <source>Lookup tables have a place of their own.</source>
        <translation>Las tablas de consulta tienen su propio lugar.</translation>
    </message>
    <message>
        <source>No work is lost unasked.</source>
        <translation>Ningún trabajo se pierde sin preguntar.</translation>
    </message>
    <message>
        <source>What takes long says so and can be cancelled.</source>
        <translation>Lo que tarda mucho lo dice y se puede cancelar.</translation>
    </message>
    <message>
        <source>After a crash the unsaved changes are offered.</source>
        <translation>Tras un cierre inesperado se ofrecen los cambios no guardados.</translation>
    </message>
    <message>
        <source>The workbench says what it is.</source>
        <translation>El programa dice qué es.</translation>
    </message>
</context>
<context>
    <name>UtilForms</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
</context>
<context>
    <name>ValueCopies</name>
    <message>
        <source>Nothing will change.</source>
        <translation>No cambiará nada.</translation>
    </message>
    <message>
        <source>One variable will change.</source>
        <translation>Cambiará una variable.</translation>
    </message>
    <message>
        <source>%L1 variables will change.</source>
        <translation>Cambiarán %L1 variables.</translation>
    </message>
    <message>
        <source>Variables whose value labels will be replaced: %L1.</source>
        <translation>Variables cuyas etiquetas de valor se reemplazarán: %L1.</translation>
    </message>
    <message>
        <source>Variables whose ranges will be replaced: %L1.</source>
        <translation>Variables cuyos rangos se reemplazarán: %L1.</translation>
    </message>
</context>
<context>
    <name>ValueLabelTarget</name>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
</context>
<context>
    <name>ValueLabelsPanel</name>
    <message>
        <source>Value labels</source>
        <translation>Etiquetas de valor</translation>
    </message>
    <message>
        <source>No value labels.</source>
        <translation>Sin etiquetas de valor.</translation>
    </message>
    <message>
        <source>adding a value label to %1</source>
        <translation>añadir una etiqueta de valor a %1</translation>
    </message>
    <message>
        <source>removing value labels of %1</source>
        <translation>eliminar etiquetas de valor de %1</translation>
    </message>
    <message>
        <source>moving value labels of %1</source>
        <translation>mover etiquetas de valor de %1</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>The value already exists as the alias of a variable.</source>
        <translation>El valor ya existe como alias de una variable.</translation>
    </message>
    <message>
        <source>The value already exists as the name of a variable.</source>
        <translation>El valor ya existe como nombre de una variable.</translation>
    </message>
    <message>
        <source>The value already exists as a entity name.</source>
        <translation>El valor ya existe como nombre de una entidad.</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Texto no válido</translation>
    </message>
    <message>
        <source>The typed character string already exists</source>
        <translation>El texto introducido ya existe</translation>
    </message>
    <message>
        <source>The typed character string already exists as the alias of a variable</source>
        <translation>El texto introducido ya existe como alias de una variable</translation>
    </message>
    <message>
        <source>RefCode Variable</source>
        <translation>Variable del código de referencia</translation>
    </message>
    <message>
        <source>Variable identified as RefCode.
Keep it as RefCode?</source>
        <translation>La variable sirve de código de referencia.
¿Desea mantenerla así?</translation>
    </message>
    <message>
        <source>Error creating</source>
        <translation>Error al crear</translation>
    </message>
    <message>
        <source>Must be selectable entity.</source>
        <translation>La entidad debe ser seleccionable.</translation>
    </message>
    <message>
        <source>Overwrite variable</source>
        <translation>Sobrescribir variable</translation>
    </message>
    <message>
        <source>already exists.</source>
        <translation>ya existe.</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>¿Sobrescribir?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Duplicated names</source>
        <translation>Nombres duplicados</translation>
    </message>
</context>
<context>
    <name>VariableForm</name>
    <message>
        <source>Select a variable to see its properties.</source>
        <translation>Seleccione una variable para ver sus propiedades.</translation>
    </message>
    <message>
        <source>N&amp;ame</source>
        <translation>Nom&amp;bre</translation>
    </message>
    <message>
        <source>Al&amp;ias</source>
        <translation>Al&amp;ias</translation>
    </message>
    <message>
        <source>La&amp;bel</source>
        <translation>E&amp;tiqueta</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grupo</translation>
    </message>
    <message>
        <source>T&amp;ype</source>
        <translation>Ti&amp;po</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>Ta&amp;maño</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Decimales</translation>
    </message>
    <message>
        <source>&amp;Missing</source>
        <translation>Per&amp;dido</translation>
    </message>
    <message>
        <source>Not appl.</source>
        <translation>No apl.</translation>
    </message>
    <message>
        <source>Source record</source>
        <translation>Registro de origen</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>N&amp;otes</source>
        <translation>N&amp;otas</translation>
    </message>
</context>
<context>
    <name>VariableMoves</name>
    <message>
        <source>%1 will be called %2, since the name is taken there.</source>
        <translation>%1 se llamará %2, porque el nombre ya existe allí.</translation>
    </message>
    <message>
        <source>%1 will lose its alias %2, which is taken there.</source>
        <translation>%1 perderá su alias %2, que ya existe allí.</translation>
    </message>
    <message>
        <source>%1 will have no reference code and not be selectable.</source>
        <translation>%1 quedará sin código de referencia y no será seleccionable.</translation>
    </message>
    <message>
        <source>%1 will have no reference label.</source>
        <translation>%1 quedará sin etiqueta de referencia.</translation>
    </message>
    <message>
        <source>%1 will have no weight.</source>
        <translation>%1 quedará sin ponderación.</translation>
    </message>
</context>
<context>
    <name>VariableProperties</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Decimales</translation>
    </message>
    <message>
        <source>Missing-value code</source>
        <translation>Código de valor perdido</translation>
    </message>
    <message>
        <source>Not-applicable code</source>
        <translation>Código de no aplicable</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Lookup</source>
        <translation>Tabla de consulta</translation>
    </message>
    <message>
        <source>Local</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>start of %1</source>
        <translation>inicio de %1</translation>
    </message>
    <message>
        <source>length of %1</source>
        <translation>longitud de %1</translation>
    </message>
</context>
<context>
    <name>VariableTablePanel</name>
    <message>
        <source>VARIABLE</source>
        <translation>VARIABLE</translation>
    </message>
    <message>
        <source>adding %1</source>
        <translation>añadir %1</translation>
    </message>
    <message>
        <source>duplicating %1</source>
        <translation>duplicar %1</translation>
    </message>
    <message>
        <source>duplicating %L1 variables</source>
        <translation>duplicar %L1 variables</translation>
    </message>
    <message>
        <source>removing %1</source>
        <translation>eliminar %1</translation>
    </message>
    <message>
        <source>removing %L1 variables</source>
        <translation>eliminar %L1 variables</translation>
    </message>
    <message>
        <source>moving %1</source>
        <translation>mover %1</translation>
    </message>
    <message>
        <source>moving %L1 variables</source>
        <translation>mover %L1 variables</translation>
    </message>
    <message>
        <source>Filter variables</source>
        <translation>Filtrar variables</translation>
    </message>
    <message>
        <source>Filter variables by name, alias, label, group or tag</source>
        <translation>Filtrar variables por nombre, alias, etiqueta, grupo o número</translation>
    </message>
    <message>
        <source>No variables to show. Add one, or drag fields here from the sources below.</source>
        <translation>No hay variables. Añada una o arrastre aquí campos de las fuentes de abajo.</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Number of variables</source>
        <translation>Número de variables</translation>
    </message>
    <message>
        <source>import of a field</source>
        <translation>importación de un campo</translation>
    </message>
    <message>
        <source>import of %L1 fields</source>
        <translation>importación de %L1 campos</translation>
    </message>
    <message>
        <source>No variable matches the filter.</source>
        <translation>Ninguna variable coincide con el filtro.</translation>
    </message>
    <message>
        <source>Variables: %L1</source>
        <translation>Variables: %L1</translation>
    </message>
    <message>
        <source>Variables: %L1 of %L2</source>
        <translation>Variables: %L1 de %L2</translation>
    </message>
</context>
<context>
    <name>VariableWriter</name>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>true</source>
        <translation>verdadero</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>false</source>
        <translation>falso</translation>
    </message>
    <message>
        <source>It was stored as &quot;%1&quot;.</source>
        <translation>Se guardó como «%1».</translation>
    </message>
    <message>
        <source>A variable needs a name.</source>
        <translation>Una variable necesita un nombre.</translation>
    </message>
    <message>
        <source>This is no whole number.</source>
        <translation>No es un número entero.</translation>
    </message>
    <message>
        <source>This is neither yes nor no.</source>
        <translation>No es ni sí ni no.</translation>
    </message>
</context>
<context>
    <name>VariablesPage</name>
    <message>
        <source>Take all variables, those that are a&amp;dded later too</source>
        <translation>Tomar todas las variables, también las que se añadan &amp;después</translation>
    </message>
    <message>
        <source>Filter variables</source>
        <translation>Filtrar variables</translation>
    </message>
    <message>
        <source>Filter the variables</source>
        <translation>Filtrar las variables</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Tick the variables that take part, entity by entity. Space switches the ticks of the selected rows.</source>
        <translation>Marque las variables que participan, entidad por entidad. La barra espaciadora cambia las marcas de las filas seleccionadas.</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>División</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>These variables are downloaded. Take away the ticks of those that are not wanted after all.</source>
        <translation>Se descargan estas variables. Quite las marcas de las que al final no se desean.</translation>
    </message>
    <message>
        <source>Entities that take part</source>
        <translation>Entidades que participan</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entidades</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;ltro</translation>
    </message>
    <message>
        <source>No variable matches the filter.</source>
        <translation>Ninguna variable coincide con el filtro.</translation>
    </message>
    <message>
        <source>Nothing of this entity is downloaded.</source>
        <translation>No se descarga nada de esta entidad.</translation>
    </message>
    <message>
        <source>This entity has no variables to choose from.</source>
        <translation>Esta entidad no tiene variables para elegir.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Variables: %L1</source>
        <translation>Variables: %L1</translation>
    </message>
    <message>
        <source>Variables: %L1 of %L2</source>
        <translation>Variables: %L1 de %L2</translation>
    </message>
    <message>
        <source>Tick what tells the records apart when they are split. The ticks are those of the page before; reference codes, labels and weights are offered here too.</source>
        <translation>Marque lo que distingue los registros al dividirlos. Las marcas son las de la página anterior; aquí se ofrecen también códigos de referencia, etiquetas y ponderaciones.</translation>
    </message>
    <message>
        <source>&amp;Tick Shown</source>
        <translation>&amp;Marcar las mostradas</translation>
    </message>
    <message>
        <source>&amp;Untick Shown</source>
        <translation>Desmarcar las m&amp;ostradas</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Número</translation>
    </message>
</context>
<context>
    <name>dictionaryTreeModelDownload</name>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The picture cannot be written to %1.</source>
        <translation>No se puede escribir la imagen en %1.</translation>
    </message>
    <message>
        <source>There is no %1 in the dictionary.</source>
        <translation>No hay ningún %1 en el diccionario.</translation>
    </message>
    <message>
        <source>There is no display. Without one, --screenshot and --tour draw pictures.</source>
        <translation>No hay pantalla. Sin ella, --screenshot y --tour dibujan imágenes.</translation>
    </message>
</context>
</TS>
