# Completion of skyvane-host for fish. The program itself says what there is: a candidate a line, a tab before its meaning.

function __skyvane_host_candidates
    set --local words (commandline --tokenize --cut-at-cursor) (commandline --current-token --cut-at-cursor)
    set --local candidates (skyvane-host --complete $words[2..] 2>/dev/null)
    if string match --quiet '\**' -- $candidates[1]
        __fish_complete_path $words[-1]
    else
        string collect -- $candidates
    end
end

complete --command skyvane-host --no-files --arguments '(__skyvane_host_candidates)'
