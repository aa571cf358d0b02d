# cmake -D cmark=PROGRAM -D docs=FOLDER -D frame=FILE -D page=FILE -P manual.cmake
#
# Writes docs/manual.md, and behind it what it refers to, as one page in a frame of HTML.
function(as_html file result)
    execute_process(COMMAND ${cmark} --extension table ${docs}/${file}
                    OUTPUT_VARIABLE html COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${html}" PARENT_SCOPE)
endfunction()

as_html(manual.md manual)
as_html(serial-permission.md permission)
# One heading above all; the other file's becomes a section, which the references go to.
string(REPLACE "<h2>" "<h3>" permission "${permission}")
string(REPLACE "</h2>" "</h3>" permission "${permission}")
string(REPLACE "<h1>" "<h2>" permission "${permission}")
string(REPLACE "</h1>" "</h2>" permission "${permission}")
string(REPLACE "href=\"serial-permission.md\"" "href=\"#the-serial-devices-permission\"" manual
       "${manual}")
set(text "${manual}${permission}")

# Sections can be referred to by their headings; the main ones are listed at the top.
string(REGEX MATCHALL "<h[23]>[^<]*</h[23]>" headings "${text}")
foreach(heading IN LISTS headings)
    string(SUBSTRING "${heading}" 1 2 level)
    string(REGEX REPLACE "</?h[23]>" "" name "${heading}")
    string(TOLOWER "${name}" id)
    string(REGEX REPLACE "[^a-z0-9 ]" "" id "${id}")
    string(STRIP "${id}" id)
    string(REPLACE " " "-" id "${id}")
    string(REPLACE "${heading}" "<${level} id=\"${id}\">${name}</${level}>" text "${text}")
    if(level STREQUAL h2)
        string(APPEND contents "<li><a href=\"#${id}\">${name}</a></li>\n")
    endif()
endforeach()
string(REPLACE "</h1>" "</h1>\n<ul class=\"contents\">\n${contents}</ul>" text "${text}")
configure_file(${frame} ${page} @ONLY)
