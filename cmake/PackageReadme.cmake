# The README of the package: that of the source tree, without what is of use there only, and with what is written for the
# package only. Both stand between comments, which nobody sees:
#
#   <!-- source tree -->  begins what the package has not, up to
#   <!-- both -->         or to
#   <!-- package          which begins what it alone has, up to the comment's end.

# package_readme(TEXT RESULT)
function(package_readme text result)
    set(rest "${text}")
    set(package "")
    while(TRUE)
        string(FIND "${rest}" "<!-- source tree -->\n" begin)
        if(begin LESS 0)
            break()
        endif()
        string(SUBSTRING "${rest}" 0 ${begin} before)
        string(SUBSTRING "${rest}" ${begin} -1 rest)
        string(FIND "${rest}" "<!-- both -->\n" end)
        if(end LESS 0)
            message(FATAL_ERROR "README.md: what begins with <!-- source tree --> has no end")
        endif()
        string(SUBSTRING "${rest}" 0 ${end} only)
        string(FIND "${only}" "<!-- package\n" own)
        set(text "")
        if(NOT own LESS 0)
            math(EXPR own "${own} + 13")
            string(SUBSTRING "${only}" ${own} -1 text)
            string(REPLACE "-->\n" "" text "${text}")
        endif()
        math(EXPR end "${end} + 14")
        string(SUBSTRING "${rest}" ${end} -1 rest)
        string(APPEND package "${before}${text}")
    endwhile()
    set(${result} "${package}${rest}" PARENT_SCOPE)
endfunction()
