set -g _HIP_SAVEVERSION = '19.5.303'
out/vray_single.parm {
SettingsOutput_img_file_path	[ 0	locks=0 ]	(	"$HIP/render/vs.$F4.exr"	)
render_export_mode	[ 0	locks=0 ]	(	"2"	)
render_export_filepath	[ 0	locks=0 ]	(	"$HIP/vrscene/$HIPNAME.vrscene"	)
}
out/vray_frames.parm {
SettingsOutput_img_file_path	[ 0	locks=0 ]	(	"$HIP/render/vf.$F4.exr"	)
render_export_mode	[ 0	locks=0 ]	(	"1"	)
render_export_filepath	[ 0	locks=0 ]	(	"$HIP/vrscene/vf.$F4.vrscene"	)
}
out/vray_off.parm {
SettingsOutput_img_file_path	[ 0	locks=0 ]	(	"$HIP/render/vo.$F4.exr"	)
render_export_mode	[ 0	locks=0 ]	(	"0"	)
render_export_filepath	[ 0	locks=0 ]	(	"$HIP/vrscene/vo.$F4.vrscene"	)
}
