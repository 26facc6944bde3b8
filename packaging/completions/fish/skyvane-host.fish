# Completion of skyvane-host for fish.

function __skyvane_host_kinds
    skyvane-host list 2>/dev/null | string replace --regex '^(?:[^\t]*\.)?([^\t.]*)\t([^\t]*).*' '$1\t$2'
end

function __skyvane_host_families
    set --local words (commandline --tokenize --cut-at-cursor)
    skyvane-host list 2>/dev/null | while read --delimiter \t kind name families
        string match --quiet --regex '(^|\.)'(string escape --style=regex -- $words[3])'$' -- $kind
        and string split ', ' -- $families
    end
end

function __skyvane_host_word_count
    test (count (commandline --tokenize --cut-at-cursor)) -eq $argv[1]
end

set --local adds '__fish_seen_subcommand_from add render'
complete --command skyvane-host --no-files
complete --command skyvane-host --condition __fish_use_subcommand --long-option help --description 'Print a summary'
complete --command skyvane-host --condition __fish_use_subcommand --long-option version --description 'Print the version'
complete --command skyvane-host --condition __fish_use_subcommand --arguments add --description 'Add a widget to the desktop'
complete --command skyvane-host --condition __fish_use_subcommand --arguments remove --description 'Remove a widget'
complete --command skyvane-host --condition __fish_use_subcommand --arguments refresh --description 'Ask for new content'
complete --command skyvane-host --condition __fish_use_subcommand --arguments quit --description 'End the host'
complete --command skyvane-host --condition __fish_use_subcommand --arguments list --description 'The widgets that there are'
complete --command skyvane-host --condition __fish_use_subcommand --arguments render --description 'Write a widget as a picture'
complete --command skyvane-host --condition "$adds; and __skyvane_host_word_count 2" --arguments '(__skyvane_host_kinds)'
complete --command skyvane-host --condition "$adds; and __skyvane_host_word_count 3" --arguments '(__skyvane_host_families)'
complete --command skyvane-host --condition '__fish_seen_subcommand_from remove' \
    --arguments '(skyvane-host list --placed 2>/dev/null)'
complete --command skyvane-host --condition '__fish_seen_subcommand_from list' --long-option placed --description 'Those on the desktop'
complete --command skyvane-host --condition '__fish_seen_subcommand_from render' --long-option output --require-parameter --force-files \
    --description 'The file to write'
complete --command skyvane-host --condition '__fish_seen_subcommand_from render' --long-option scale --exclusive --arguments '1 2 3 4' \
    --description 'Pixels a point'
complete --command skyvane-host --condition '__fish_seen_subcommand_from render' --long-option sample --description 'The built-in sample'
