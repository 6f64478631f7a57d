# Completion of tavimor-cli for fish.

# A problem is a file with its values beside it.
function __tavimor_cli_problems
    for name in (__fish_complete_path (commandline -ct) | string replace -r '\t.*' '')
        if test -d $name -o -e $name.dat
            echo $name
        end
    end
end

# Whether so many words stand between the command and the cursor, options and what belongs to them apart.
function __tavimor_cli_position -a expected
    set -l position 0
    set -l before
    for word in (commandline -opc)[3..]
        if not string match -q -- '-*' $word; and not contains -- "$before" \
                -o --output --degree --centre --center --level --max --to --name --within --checks
            set position (math $position + 1)
        end
        set before $word
    end
    test $position -eq $expected
end

complete -c tavimor-cli -f
complete -c tavimor-cli -s h -l help -d 'Print the help'
complete -c tavimor-cli -n __fish_use_subcommand -l version -d 'Print the version'
complete -c tavimor-cli -n __fish_use_subcommand -a fit -d 'Fit the problem and print the results listing'
complete -c tavimor-cli -n __fish_use_subcommand -a show -d 'Print the specifications and the stored results'
complete -c tavimor-cli -n __fish_use_subcommand -a eval -d 'Print the estimate at a point'
complete -c tavimor-cli -n __fish_use_subcommand -a analyse -d 'Tell how many digits of a fit are right'
complete -c tavimor-cli -n __fish_use_subcommand -a degrees -d 'Tell how well each combination of degrees would fit'
complete -c tavimor-cli -n __fish_use_subcommand -a report -d 'Print the report'
complete -c tavimor-cli -n __fish_use_subcommand -a copy -d 'Save the problem under another name'
complete -c tavimor-cli -n __fish_use_subcommand -a import -d 'Make a problem of a table'
complete -c tavimor-cli -n '__fish_seen_subcommand_from fit' -s o -l output -r -F -d 'Save the fitted problem'
complete -c tavimor-cli -n '__fish_seen_subcommand_from fit' -l precise -d 'List and save the exact solution'
complete -c tavimor-cli -n '__fish_seen_subcommand_from fit' -l no-check -d 'Do not look how many digits are right'
complete -c tavimor-cli -n '__fish_seen_subcommand_from fit analyse' -l degree -x -d 'Other degrees'
complete -c tavimor-cli -n '__fish_seen_subcommand_from fit analyse' -l centre -x -d 'Other centres'
complete -c tavimor-cli -n '__fish_seen_subcommand_from analyse eval' -l level -x -d 'The level of intervals'
complete -c tavimor-cli -n '__fish_seen_subcommand_from eval' -l interval -d 'Add intervals'
complete -c tavimor-cli -n '__fish_seen_subcommand_from analyse degrees' -l as-stored -d 'Take the data for doubles'
complete -c tavimor-cli -n '__fish_seen_subcommand_from analyse degrees' -l json -d 'Print a JSON object'
complete -c tavimor-cli -n '__fish_seen_subcommand_from degrees' -l max -x -d 'The largest degrees'
complete -c tavimor-cli -n '__fish_seen_subcommand_from degrees' -l all -d 'All combinations'
complete -c tavimor-cli -n __fish_use_subcommand -a export -d 'Write the fit as a formula'
complete -c tavimor-cli -n __fish_use_subcommand -a residuals -d 'Write a table of given and fitted values'
complete -c tavimor-cli -n '__fish_seen_subcommand_from export residuals' -s o -l output -r -F -d 'Write to a file'
complete -c tavimor-cli -n '__fish_seen_subcommand_from export' -l to -x -d 'The form' \
    -a 'c c++ python fortran octave r javascript latex text gnuplot xlsx json'
complete -c tavimor-cli -n '__fish_seen_subcommand_from export' -l name -x -d 'The name of the function'
complete -c tavimor-cli -n '__fish_seen_subcommand_from export' -l within -x -d 'Round, staying within'
complete -c tavimor-cli -n '__fish_seen_subcommand_from export' -l precise -d 'Take the exact solution'
complete -c tavimor-cli -n '__fish_seen_subcommand_from export' -l checks -x -d 'The number of check points'
complete -c tavimor-cli -n '__fish_seen_subcommand_from export' -l nan-outside -d 'NaN outside the intervals'
complete -c tavimor-cli -n '__fish_seen_subcommand_from export residuals' -l no-check -d 'Leave out what a second opinion tells'
complete -c tavimor-cli -n '__fish_seen_subcommand_from fit show eval analyse degrees report copy export residuals; and __tavimor_cli_position 0' \
    -a '(__tavimor_cli_problems)'
complete -c tavimor-cli -n '__fish_seen_subcommand_from copy; and __tavimor_cli_position 1' -F
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -F
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l columns -x -d 'The columns, the function last'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l degree -x -d 'The degree of each variable'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l centre -x -d 'The centre of each variable'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l separator -x -a 'comma semicolon tab blank'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l decimal-comma -d 'Numbers have a decimal comma'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l header -x -a 'yes no'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l form -x -a 'list cross'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l tolerance -x -d 'Values this near are one'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l duplicates -x -a 'refuse mean'
complete -c tavimor-cli -n '__fish_seen_subcommand_from import' -l gaps -x -a 'refuse shrink'
