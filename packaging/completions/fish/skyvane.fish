# Completion of skyvane for fish.
complete --command skyvane --no-files --arguments 'skyvane://open skyvane://aircraft/'
complete --command skyvane --long-option settings --description 'Open the settings'
complete --command skyvane --long-option alerts --description 'Choose what to be told of'
complete --command skyvane --long-option service --description 'Start without a window'
complete --command skyvane --long-option version --description 'Print the version'
complete --command skyvane --long-option help --short-option h --description 'Print a summary'
