# What a desktop's menu needs: the entry and its icons, the description, the script that enters them.
set(id example.zephyrwick.quorvanta)
set(share ${CMAKE_CURRENT_BINARY_DIR}/share)

# The program's icon, in the sizes that desktop menus ask for.
get_target_property(icons pictures MENU_ICONS)
foreach(icon IN LISTS icons)
    string(REGEX MATCH "([0-9]+)\\.png$" ending ${icon})
    set(size ${CMAKE_MATCH_1})
    install(FILES ${icon} DESTINATION share/icons/hicolor/${size}x${size}/apps COMPONENT menu
            RENAME ${id}.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/src/pictures/quorvanta.svg
        DESTINATION share/icons/hicolor/scalable/apps COMPONENT menu RENAME ${id}.svg)

set(ENV{SOURCE_DATE_EPOCH} ${changed})
string(TIMESTAMP packaged %Y-%m-%d UTC)
configure_file(${id}.metainfo.xml.in ${share}/metainfo/${id}.metainfo.xml @ONLY)

install(DIRECTORY ${share} DESTINATION . COMPONENT menu)
install(FILES ${id}.desktop DESTINATION share/applications COMPONENT menu)
install(PROGRAMS desktop-menu DESTINATION . COMPONENT menu)
