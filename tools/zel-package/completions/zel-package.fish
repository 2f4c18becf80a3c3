# fish completion for zel-package

function __zel_package_complete
    set -l words (commandline --tokenize --cut-at-cursor --current-process)
    set -l current (commandline --current-token --cut-at-cursor)
    $words[1] --complete $words[2..-1] "$current" 2>/dev/null
end

# File names only if there are no words.
complete --command zel-package --condition 'test -n "$(__zel_package_complete)"' --no-files
complete --command zel-package --arguments '(__zel_package_complete)'
