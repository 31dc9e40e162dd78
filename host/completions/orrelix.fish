# Completion of orrelix for fish.
complete -c orrelix -f
complete -c orrelix -s h -l help -d "Print help"
complete -c orrelix -l code-page -x -a "65001 932 936 949 950 1252" -d "Code page of the texts in configuration files"

complete -c orrelix -n __fish_use_subcommand -s V -l version -d "Print the version"
for parent in __fish_use_subcommand "__fish_seen_subcommand_from help"
    complete -c orrelix -n $parent -a new -d "Make an effect"
    complete -c orrelix -n $parent -a edit -d "Change an effect"
    complete -c orrelix -n $parent -a show -d "Print what a configuration file holds"
    complete -c orrelix -n $parent -a preview -d "Make a page to look at for each configuration file"
    complete -c orrelix -n $parent -a publish -d "Put an effect into a page of a site"
    complete -c orrelix -n $parent -a register -d "Let editors find the component"
    complete -c orrelix -n $parent -a unregister -d "Take that back"
    complete -c orrelix -n $parent -a servers -d "Print the components that editors find"
    complete -c orrelix -n $parent -a help -d "Tell about a command"
end

complete -c orrelix -n "__fish_seen_subcommand_from new edit show preview publish; and not __fish_seen_subcommand_from help" \
    -k -a "(__fish_complete_suffix .cfg)"
complete -c orrelix -n "__fish_seen_subcommand_from new" -l title -x -d "By which a page marks its place"
complete -c orrelix -n "__fish_seen_subcommand_from new" -l effect -x -d "Make it without dialogs"
complete -c orrelix -n "__fish_seen_subcommand_from new edit" -l set -x -d "Set a field: NAME=VALUE"
complete -c orrelix -n "__fish_seen_subcommand_from new edit" -l list-fields -d "Print the fields and what they hold"
complete -c orrelix -n "__fish_seen_subcommand_from new edit" -l json -d "With --list-fields: print them as JSON"
complete -c orrelix -n "__fish_seen_subcommand_from new edit" -l overwrite -d "Copy images over files of the same name"
complete -c orrelix -n "__fish_seen_subcommand_from show" -l json -d "Print JSON"
complete -c orrelix -n "__fish_seen_subcommand_from register; and not __fish_seen_subcommand_from help" -F
complete -c orrelix -n "__fish_seen_subcommand_from preview" -l out -x -a "(__fish_complete_directories)" -d "Folder for the pages"
complete -c orrelix -n "__fish_seen_subcommand_from preview" -l index -d "Write an index.html"
complete -c orrelix -n "__fish_seen_subcommand_from publish" -l page -r -F -d "The page"
complete -c orrelix -n "__fish_seen_subcommand_from publish" -l site -x -a "(__fish_complete_directories)" -d "Folder of the site's root"
complete -c orrelix -n "__fish_seen_subcommand_from preview publish" -l overwrite -d "Replace files that the program didn't put there"
