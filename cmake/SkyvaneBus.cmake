# Both ends of an interface on the message bus, made from its description in desk/bus/. Their sources, which nobody here wrote,
# are compiled without warnings; their headers are included as the build folder's: "desk/bus/host_interface.h". The target
# skyvane_generated makes them all, for what reads sources and compiles nothing.
add_custom_target(skyvane_generated)

function(skyvane_bus_sources target base sources)
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
    target_sources(${target} PRIVATE ${sources})
    add_custom_target(${target}_${base} DEPENDS ${sources})
    add_dependencies(${target} ${target}_${base})
    add_dependencies(skyvane_generated ${target}_${base})
    target_include_directories(${target} SYSTEM PUBLIC ${PROJECT_BINARY_DIR})
endfunction()

# The caller's end, a class NAMEInterface in name_interface.h, each method of which makes a call.
function(skyvane_bus_interface target description name)
    string(TOLOWER ${name} base)
    set(xml ${PROJECT_SOURCE_DIR}/desk/bus/${description}.xml)
    set_source_files_properties(${xml} PROPERTIES CLASSNAME ${name}Interface NO_NAMESPACE TRUE)
    qt_add_dbus_interface(made ${xml} ${base}_interface)
    skyvane_bus_sources(${target} ${base} "${made}")
endfunction()

# The other end, a class NAMEAdaptor in name_adaptor.h: hands each call to the method of that name of its parent, which is of
# this class in this header.
function(skyvane_bus_adaptor target description name class header)
    string(TOLOWER ${name} base)
    qt_add_dbus_adaptor(
        made ${PROJECT_SOURCE_DIR}/desk/bus/${description}.xml ${header} ${class} ${base}_adaptor ${name}Adaptor)
    skyvane_bus_sources(${target} ${base} "${made}")
endfunction()
